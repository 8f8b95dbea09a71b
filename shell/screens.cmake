# shell_screens: the title, options and rules screens. The board screens and
# the fastest-times screen are reached by their ids in the screens' table
# through the screen model, so this library does not link them.
add_library(shell_screens STATIC
    looks.h looks.cpp
    titlefrm.h titlefrm.cpp
    startplay2.h startplay2.cpp
    morvelrules.h morvelrules.cpp
    register.h register.cpp
)
target_include_directories(shell_screens PUBLIC "${PROJECT_SOURCE_DIR}")
target_link_libraries(shell_screens PUBLIC tables shell_core platform records_core)
