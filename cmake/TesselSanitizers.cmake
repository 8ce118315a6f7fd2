# TESSEL_SANITIZE is a comma-separated list as the compilers take it: address,undefined for the asan preset.
if(TESSEL_SANITIZE)
    add_compile_options(-fsanitize=${TESSEL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${TESSEL_SANITIZE})
endif()
if(TESSEL_COVERAGE)
    add_compile_options(--coverage -fprofile-update=atomic)
    add_link_options(--coverage)
endif()
