# cmake -D BUILD_DIR=... -D WORK_DIR=... [-D GENERATOR=... -D COMPILER=... -D LAUNCHER=... -D BUILD_TYPE=...
#       -D CXX_FLAGS=... -D LINK_FLAGS=...] -P run.cmake
# Installs the build tree BUILD_DIR under WORK_DIR, then configures, builds and runs the project in this folder
# against what was installed. Any failure ends the script with an error.
cmake_minimum_required(VERSION 3.25)

foreach(needed BUILD_DIR WORK_DIR GENERATOR COMPILER)
    if(NOT ${needed})
        message(FATAL_ERROR "${needed} is missing")
    endif()
endforeach()

set(prefix ${WORK_DIR}/prefix)
set(build ${WORK_DIR}/build)

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        list(JOIN ARGN " " command)
        message("${output}")
        message(FATAL_ERROR "${command}\nended with ${result}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

# From scratch: a header or target that is no longer installed must not be found in what an earlier run left.
file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})
run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${build} -G ${GENERATOR}
    -DCMAKE_PREFIX_PATH=${prefix}
    -DCMAKE_CXX_COMPILER=${COMPILER}
    -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}
    -DCMAKE_BUILD_TYPE=${BUILD_TYPE}
    -DCMAKE_CXX_FLAGS=${CXX_FLAGS}
    -DCMAKE_EXE_LINKER_FLAGS=${LINK_FLAGS}
    -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF
)
run(${CMAKE_COMMAND} --build ${build})

file(STRINGS ${build}/CMakeCache.txt found REGEX "^Tessel_DIR:")
if(NOT found MATCHES "=${prefix}/")
    message(FATAL_ERROR "Another package was found: ${found}")
endif()

run(${build}/consumer)
string(REGEX MATCHALL "\n" line_ends "${output}")
list(LENGTH line_ends lines)
if(NOT lines EQUAL 1)
    message(FATAL_ERROR "One line was expected of the consumer, not:\n${output}")
endif()
message(STATUS "${output}")
