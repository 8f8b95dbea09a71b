# cmake -P fresh_install.cmake <build folder> <DESTDIR> <prefix>: installs the
# built game into an emptied DESTDIR, as a packager would.
set(build "${CMAKE_ARGV3}")
set(root "${CMAKE_ARGV4}")
set(prefix "${CMAKE_ARGV5}")
file(REMOVE_RECURSE "${root}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${build}" --prefix "${prefix}"
                OUTPUT_QUIET RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "cmake --install failed")
endif()
