# cmake --install, and the packages that cpack makes (./paquet/construit).
include(GNUInstallDirs)

set(paquet ${PROJECT_SOURCE_DIR}/paquet)
set(compose ${PROJECT_BINARY_DIR}/paquet)

configure_file(${paquet}/org.vorlain.Vorlain.metainfo.xml.in ${compose}/org.vorlain.Vorlain.metainfo.xml @ONLY)

# vorlain_comprime(<text file> <name.gz> <folder>): without name and date in it, so that two builds give the same bytes.
function(vorlain_comprime source nom destination)
    set(cible ${compose}/${destination}/${nom})
    get_filename_component(dossier ${cible} DIRECTORY)
    add_custom_command(OUTPUT ${cible}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${dossier}
        COMMAND gzip -9nc ${source} > ${cible}
        DEPENDS ${source} VERBATIM)
    string(MAKE_C_IDENTIFIER "comprime_${destination}_${nom}" nom_cible)
    add_custom_target(${nom_cible} ALL DEPENDS ${cible})
    install(FILES ${cible} DESTINATION ${CMAKE_INSTALL_DATADIR}/${destination})
endfunction()

foreach(langue IN ITEMS "" fr)
    string(JOIN "." page vorlain ${langue} 1)
    configure_file(${paquet}/${page}.in ${compose}/${page} @ONLY)
    string(JOIN "/" section man ${langue} man1)
    vorlain_comprime(${compose}/${page} vorlain.1.gz ${section})
endforeach()
vorlain_comprime(${PROJECT_SOURCE_DIR}/CHANGELOG.md changelog.gz doc/vorlain)

install(TARGETS vorlain RUNTIME)
install(FILES ${paquet}/org.vorlain.Vorlain.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${compose}/org.vorlain.Vorlain.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${paquet}/vorlain-adif.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(FILES ${paquet}/icone/vorlain.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
foreach(cote IN ITEMS 16 22 24 32 48 64 128 256)
    install(FILES ${paquet}/icone/vorlain-${cote}.png RENAME vorlain.png
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${cote}x${cote}/apps)
endforeach()
file(READ ${PROJECT_SOURCE_DIR}/LICENSE licence)
file(READ ${PROJECT_SOURCE_DIR}/NOTICES.md notices)
file(CONFIGURE OUTPUT ${compose}/copyright CONTENT "@licence@\n@notices@" @ONLY)
install(FILES ${compose}/copyright ${PROJECT_SOURCE_DIR}/docs/manuel.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/vorlain)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/images DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/vorlain)

set(CPACK_PACKAGE_NAME vorlain)
set(CPACK_PACKAGE_VERSION ${VORLAIN_VERSION})
set(CPACK_PACKAGE_VENDOR "the Vorlain authors")
set(CPACK_PACKAGE_CONTACT "the Vorlain authors <vorlain@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "logbook for the French amateur-radio activity awards")
set(CPACK_PACKAGE_DESCRIPTION "Vorlain logs contacts with castles, mills, lighthouses, abbeys, hydraulic works,
Chappe towers, departments, provinces and more, one log for each of 21 awards;
tells tier by tier what can be claimed; saves and prints the lists for award
managers; reads and writes ADIF. All its texts are French.")
set(CPACK_PACKAGE_FILE_NAME vorlain-${VORLAIN_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION hamradio)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What no library asks for: the French of Qt's own dialogues, a font that has every character of the logs, a fixed one.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-translations-l10n, fonts-dejavu-core")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, fonts-liberation")

set(CPACK_SOURCE_GENERATOR TGZ)
set(CPACK_SOURCE_PACKAGE_FILE_NAME vorlain-${VORLAIN_VERSION}-source)
set(CPACK_SOURCE_IGNORE_FILES /build/ /[.]git/ /[.]cache/ /compile_commands[.]json$)
include(CPack)
