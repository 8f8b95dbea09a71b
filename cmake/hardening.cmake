# The game as built to play and to package carries Debian's hardening: fortified
# string and memory functions, a strong stack protector, format checks, and a
# read-only, resolved-at-start relocation table (relro, bind now). The flags come
# from dpkg-buildflags when it is installed, so they follow the distribution;
# without it (a machine set up only to play) the same set is written out here.
# The sanitizer build has its own instrumentation and goes without.
option(PIMBALO_HARDEN "Build with Debian's hardening flags" ON)
if(NOT PIMBALO_HARDEN OR PIMBALO_SANITIZE)
    return()
endif()

find_program(DPKG_BUILDFLAGS dpkg-buildflags)
mark_as_advanced(DPKG_BUILDFLAGS)
set(_hardening_compile "")
set(_hardening_link "")
if(DPKG_BUILDFLAGS)
    foreach(_kind CPPFLAGS CXXFLAGS LDFLAGS)
        execute_process(
            COMMAND "${CMAKE_COMMAND}" -E env "DEB_BUILD_MAINT_OPTIONS=hardening=+all"
                    "${DPKG_BUILDFLAGS}" --get ${_kind}
            OUTPUT_VARIABLE _flags OUTPUT_STRIP_TRAILING_WHITESPACE RESULT_VARIABLE _status)
        if(NOT _status EQUAL 0)
            message(FATAL_ERROR "dpkg-buildflags --get ${_kind} failed")
        endif()
        separate_arguments(_flags UNIX_COMMAND "${_flags}")
        foreach(_flag IN LISTS _flags)
            # Optimisation and debugging information are the build type's;
            # file paths in the debugging information stay as they are.
            if(_flag MATCHES "^-(g|O)" OR _flag MATCHES "^-f(file|debug|macro)-prefix-map=")
                continue()
            endif()
            if(_kind STREQUAL "LDFLAGS")
                list(APPEND _hardening_link "${_flag}")
            else()
                list(APPEND _hardening_compile "${_flag}")
            endif()
        endforeach()
    endforeach()
else()
    set(_hardening_compile -D_FORTIFY_SOURCE=2 -fstack-protector-strong -Wformat
                           -Werror=format-security)
    set(_hardening_link -Wl,-z,relro -Wl,-z,now)
endif()
list(REMOVE_DUPLICATES _hardening_compile)

# Fortifying needs an optimised build; a Debug build goes without it.
foreach(_flag IN LISTS _hardening_compile)
    if(_flag MATCHES "^-D_FORTIFY_SOURCE")
        add_compile_options("$<$<NOT:$<CONFIG:Debug>>:${_flag}>")
    else()
        add_compile_options("${_flag}")
    endif()
endforeach()
add_link_options(${_hardening_link})
list(JOIN _hardening_compile " " _shown)
list(JOIN _hardening_link " " _shown_link)
message(STATUS "Hardening: ${_shown} ${_shown_link}")
