# The game in other languages: one translations/pimbalo_<language>.ts per
# language (a new language is just a new file, found when the build is
# configured again). The build turns each into a .qm file in the game
# folder's translations/, beside Images/ and wav/, and installs them with the
# pictures and sounds. The game picks the desktop's language among them.
file(GLOB PIMBALO_TS_FILES CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/translations/pimbalo_*.ts")
set(PIMBALO_TRANSLATIONS_DIR "${PIMBALO_GAME_DIR}/translations")
file(MAKE_DIRECTORY "${PIMBALO_TRANSLATIONS_DIR}")

if(PIMBALO_TS_FILES)
    set_source_files_properties(${PIMBALO_TS_FILES}
                                PROPERTIES OUTPUT_LOCATION "${PIMBALO_TRANSLATIONS_DIR}")
    # `cmake --build build --target update_translations` brings every .ts up
    # to date with the texts marked in the tables. No source locations: they
    # would change with every edit of the tables and bury the translators'
    # own changes.
    qt_add_lupdate(pimbalo TS_FILES ${PIMBALO_TS_FILES}
                   SOURCES "${PROJECT_SOURCE_DIR}/tables/texts.h"
                           "${PROJECT_SOURCE_DIR}/tables/pictures.cpp"
                   INCLUDE_DIRECTORIES "${PROJECT_SOURCE_DIR}"
                   OPTIONS -locations none)
    qt_add_lrelease(pimbalo TS_FILES ${PIMBALO_TS_FILES} OPTIONS -silent
                    QM_FILES_OUTPUT_VARIABLE PIMBALO_QM_FILES)
    install(FILES ${PIMBALO_QM_FILES} DESTINATION "${PIMBALO_INSTALL_DATADIR}/translations")
endif()
