# shell_screens: the title, options and rules screens. The board screens and
# the fastest-times screen are reached by name through the screen model, so
# this library does not link them.
add_library(shell_screens STATIC
    looks.h looks.cpp
    titlefrm.h titlefrm.cpp
    startplay2.h startplay2.cpp
    morvelrules.h morvelrules.cpp
    game_folder.h game_folder.cpp
    register.h register.cpp
)
target_include_directories(shell_screens PUBLIC "${PROJECT_SOURCE_DIR}")
target_link_libraries(shell_screens PUBLIC shell_core platform records_core)

# The game itself, once the board and fastest-times screens exist. Those
# folders are added after this one, so their presence is judged by their
# sources, and the asset dependency is added when the whole tree is read.
if(EXISTS "${PROJECT_SOURCE_DIR}/board/CMakeLists.txt"
   AND EXISTS "${PROJECT_SOURCE_DIR}/records/highscores.cpp")
    add_executable(pimbalo main.cpp)
    target_link_libraries(pimbalo PRIVATE shell_screens board records_ui)
    # Where a launcher that starts the game elsewhere finds its pictures.
    target_compile_definitions(pimbalo PRIVATE PIMBALO_GAME_DIR="${PIMBALO_GAME_DIR}")
    set_target_properties(pimbalo PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PIMBALO_GAME_DIR}")

    function(pimbalo_needs_assets)
        if(TARGET assets)
            add_dependencies(pimbalo assets)
        endif()
    endfunction()
    cmake_language(DEFER DIRECTORY "${PROJECT_SOURCE_DIR}" CALL pimbalo_needs_assets)
endif()
