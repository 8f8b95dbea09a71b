# PIMBALO_SANITIZE builds everything with AddressSanitizer (leak detection
# included) and UndefinedBehaviorSanitizer. The README's test command builds
# the project a second time this way, in build-asan/, and runs every test there.
# Any report ends the program with a failure, so it fails the test that ran it.
option(PIMBALO_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
if(NOT PIMBALO_SANITIZE)
    return()
endif()

add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer
                    -fno-sanitize-recover=all)
add_link_options(-fsanitize=address,undefined)

# ctest reads this before it runs any test, so every test, and every program a
# test starts (the game in the end-to-end runs included), gets the same
# sanitizer settings, however ctest is started.
set(PIMBALO_LSAN_SUPPRESSIONS "${PROJECT_SOURCE_DIR}/tests/sanitizers/lsan.supp")
set(_sanitizer_settings "${CMAKE_BINARY_DIR}/sanitizer_settings.cmake")
configure_file("${PROJECT_SOURCE_DIR}/tests/sanitizers/settings.cmake.in"
               "${_sanitizer_settings}" @ONLY)
set_property(DIRECTORY "${PROJECT_SOURCE_DIR}" APPEND PROPERTY TEST_INCLUDE_FILES
             "${_sanitizer_settings}")
