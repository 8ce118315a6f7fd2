# What the built libraries let other programs see.
add_test(NAME only_documented_symbols_are_exported
    COMMAND ${CMAKE_COMMAND}
        -D NM=${CMAKE_NM}
        -D READELF=${CMAKE_READELF}
        -D LIBRARIES=model_Tessel=$<TARGET_FILE:model_Tessel>,utilitarian=$<TARGET_FILE:utilitarian>,Business_Tessel=$<TARGET_FILE:Business_Tessel>
        -P ${CMAKE_CURRENT_LIST_DIR}/exported_symbols.cmake
)
set_tests_properties(only_documented_symbols_are_exported PROPERTIES TIMEOUT 60)
