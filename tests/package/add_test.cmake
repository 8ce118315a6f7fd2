# What the built libraries let other programs see.
add_test(NAME only_documented_symbols_are_exported
    COMMAND ${CMAKE_COMMAND}
        -D NM=${CMAKE_NM}
        -D READELF=${CMAKE_READELF}
        -D LIBRARIES=model_Tessel=$<TARGET_FILE:model_Tessel>,utilitarian=$<TARGET_FILE:utilitarian>,Business_Tessel=$<TARGET_FILE:Business_Tessel>
        -P ${CMAKE_CURRENT_LIST_DIR}/exported_symbols.cmake
)
set_tests_properties(only_documented_symbols_are_exported PROPERTIES TIMEOUT 60)

# Which program tests which of those classes.
add_test(NAME every_exported_class_has_its_tests
    COMMAND ${CMAKE_COMMAND}
        -D CTEST=${CMAKE_CTEST_COMMAND}
        -D BUILD_DIR=${PROJECT_BINARY_DIR}
        -D WORK_DIR=${PROJECT_BINARY_DIR}/tests/class_tests
        -D TABLE=${PROJECT_SOURCE_DIR}/tests/class_tests.txt
        -P ${CMAKE_CURRENT_LIST_DIR}/class_tests.cmake
)
set_tests_properties(every_exported_class_has_its_tests PROPERTIES TIMEOUT 60)
