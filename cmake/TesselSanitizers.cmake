# TESSEL_SANITIZE is a comma-separated list as the compilers take it: address,undefined for the asan preset.
if(TESSEL_SANITIZE)
    add_compile_options(-fsanitize=${TESSEL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${TESSEL_SANITIZE})
endif()
# The fuzzer sees which of the libraries' branches an input takes only where they count them.
if(TESSEL_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(TESSEL_COVERAGE)
    # Clang counts the branches that stand in the source; gcc's count holds one for each exception that a call might throw.
    add_compile_options(-fprofile-instr-generate -fcoverage-mapping)
    add_link_options(-fprofile-instr-generate)
endif()
