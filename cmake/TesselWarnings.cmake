# What the compilers have to say, for the project's own targets only.
add_library(tessel_warnings INTERFACE)
target_compile_options(tessel_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
    -Wconversion -Wno-sign-conversion -Wdouble-promotion -Wformat=2 -Wimplicit-fallthrough
    $<$<BOOL:${TESSEL_WERROR}>:-Werror>
)
target_compile_definitions(tessel_warnings INTERFACE
    QT_DEPRECATED_WARNINGS
    QT_NO_CAST_TO_ASCII
    QT_NO_FOREACH
)
