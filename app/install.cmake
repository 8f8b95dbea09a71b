# Installing the game (cmake --install, DESTDIR) and packaging it (cpack -G DEB).
# The menu entry, AppStream metadata and manual page are filled at install
# time, so that they name the program and data where they really land.
install(TARGETS pimbalo RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(TARGETS pimbalo_sound LIBRARY DESTINATION "${PIMBALO_INSTALL_MODULEDIR}")
# A stripped install (the package) also drops the compilers' notes, as
# Debian's own packaging does.
install(CODE "
    if(CMAKE_INSTALL_DO_STRIP)
        foreach(file \"${CMAKE_INSTALL_BINDIR}/$<TARGET_FILE_NAME:pimbalo>\"
                     \"${PIMBALO_INSTALL_MODULEDIR}/$<TARGET_FILE_NAME:pimbalo_sound>\")
            execute_process(COMMAND \"${CMAKE_OBJCOPY}\" --remove-section=.comment
                                    \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/\${file}\")
        endforeach()
    endif()
")
install(DIRECTORY "${PIMBALO_GAME_DIR}/Images" "${PIMBALO_GAME_DIR}/wav" "${PIMBALO_GAME_DIR}/icons"
        DESTINATION "${PIMBALO_INSTALL_DATADIR}")
install(DIRECTORY "${PIMBALO_GAME_DIR}/icons/hicolor" DESTINATION "${CMAKE_INSTALL_DATADIR}/icons")

set(_filled "${CMAKE_CURRENT_BINARY_DIR}/filled")
install(CODE "
    set(PIMBALO_TEMPLATES \"${CMAKE_CURRENT_SOURCE_DIR}/share\")
    set(PIMBALO_FILLED \"${_filled}\")
    set(PIMBALO_APP_ID \"${PIMBALO_APP_ID}\")
    set(PROJECT_VERSION \"${PROJECT_VERSION}\")
    set(PIMBALO_BINDIR \"${CMAKE_INSTALL_BINDIR}\")
    set(PIMBALO_DATADIR \"${PIMBALO_INSTALL_DATADIR}\")
")
install(SCRIPT fill_templates.cmake)
install(FILES "${_filled}/${PIMBALO_APP_ID}.desktop"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${_filled}/${PIMBALO_APP_ID}.metainfo.xml"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES "${_filled}/pimbalo.6.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man6")
install(FILES share/copyright "${_filled}/changelog.gz"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/pimbalo")

# The Debian package: /usr/games/pimbalo and friends, its Depends worked out
# from the libraries the program links.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME pimbalo)
set(CPACK_PACKAGE_VENDOR "The Pimbalo developers")
set(CPACK_PACKAGE_CONTACT "The Pimbalo developers <pimbalo@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "picture logic puzzles for young children")
set(CPACK_PACKAGE_DESCRIPTION
    "Pimbalo is a picture form of the Latin square puzzle: drag pictures into a\n"
    "4x4, 5x5 or 6x6 grid so that no picture repeats in a row, a column or the\n"
    "board's coloured regions. Three levels, many picture sets, and the five\n"
    "fastest times for every board and level, kept for each player.")
string(REPLACE ";" "" CPACK_PACKAGE_DESCRIPTION "${CPACK_PACKAGE_DESCRIPTION}")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://pimbalo.example.org/")
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
include(CPack)
