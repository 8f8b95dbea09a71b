# Run by the install step: fills the menu entry, AppStream metadata and manual
# page for the prefix being installed into (DESTDIR is not part of it), and
# compresses the manual page and change log as Debian wants them.
function(pimbalo_installed_path out relative)
    cmake_path(ABSOLUTE_PATH relative BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}"
               NORMALIZE OUTPUT_VARIABLE full)
    set(${out} "${full}" PARENT_SCOPE)
endfunction()

pimbalo_installed_path(PIMBALO_PROGRAM "${PIMBALO_BINDIR}/pimbalo")
pimbalo_installed_path(PIMBALO_DATA "${PIMBALO_DATADIR}")

configure_file("${PIMBALO_TEMPLATES}/pimbalo.desktop.in"
               "${PIMBALO_FILLED}/${PIMBALO_APP_ID}.desktop" @ONLY)
configure_file("${PIMBALO_TEMPLATES}/pimbalo.metainfo.xml.in"
               "${PIMBALO_FILLED}/${PIMBALO_APP_ID}.metainfo.xml" @ONLY)
configure_file("${PIMBALO_TEMPLATES}/pimbalo.6.in" "${PIMBALO_FILLED}/pimbalo.6" @ONLY)
configure_file("${PIMBALO_TEMPLATES}/changelog" "${PIMBALO_FILLED}/changelog" COPYONLY)
foreach(file pimbalo.6 changelog)
    execute_process(COMMAND gzip -9nf "${PIMBALO_FILLED}/${file}" RESULT_VARIABLE gzip_status)
    if(NOT gzip_status EQUAL 0)
        message(FATAL_ERROR "could not compress ${file}")
    endif()
endforeach()
