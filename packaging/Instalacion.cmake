# What an installation takes where, with the usual prefixes, and the Debian package. The programs find the share folder beside them
# (../share/pastorix), wherever the prefix is.
include(GNUInstallDirs)

set(escritorio ${CMAKE_SOURCE_DIR}/packaging/escritorio)
set(aplicacion es.pastorix.Pastorix)
set(programas pastorix pastorixctl)
if(TARGET pastorix-oficina)
    list(APPEND programas pastorix-oficina)
    install(FILES ${escritorio}/es.pastorix.Oficina.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
endif()
install(TARGETS ${programas} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${ejemplo_de_instalacion} DESTINATION ${CMAKE_INSTALL_DATADIR}/pastorix/ejemplo)
install(FILES ${PASTORIX_MANUAL} DESTINATION ${CMAKE_INSTALL_DATADIR}/pastorix)
install(FILES ${CMAKE_BINARY_DIR}/manual/manual.html DESTINATION ${CMAKE_INSTALL_DATADIR}/pastorix/ayuda)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/docs/manual/imagenes DESTINATION ${CMAKE_INSTALL_DATADIR}/pastorix/ayuda)

configure_file(${escritorio}/${aplicacion}.metainfo.xml.in ${CMAKE_BINARY_DIR}/${aplicacion}.metainfo.xml @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/${aplicacion}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${escritorio}/${aplicacion}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${escritorio}/pastorix.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(FILES ${escritorio}/pastorixctl.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME pastorixctl)

# Icons: one drawing, and the pictures of the sizes that desktops ask for.
set(dibujo ${CMAKE_SOURCE_DIR}/src/frame/iconos/pastorix.svg)
set(iconos ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${dibujo} DESTINATION ${iconos}/scalable/apps RENAME ${aplicacion}.svg)
set(puntos 16 22 24 32 48 64 128 256 512)
list(TRANSFORM puntos REPLACE "(.+)" "${CMAKE_BINARY_DIR}/iconos/\\1.png" OUTPUT_VARIABLE dibujados)
add_custom_command(OUTPUT ${dibujados}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/iconos
    COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen $<TARGET_FILE:pastorix_iconos> ${dibujo} ${CMAKE_BINARY_DIR}/iconos ${puntos}
    DEPENDS pastorix_iconos ${dibujo} VERBATIM)
add_custom_target(iconos ALL DEPENDS ${dibujados})
foreach(p ${puntos})
    install(FILES ${CMAKE_BINARY_DIR}/iconos/${p}.png DESTINATION ${iconos}/${p}x${p}/apps RENAME ${aplicacion}.png)
endforeach()

# Pages for man, made from what the programs say of themselves. Without help2man there are none.
find_program(HELP2MAN help2man)
if(HELP2MAN)
    foreach(programa ${programas})
        set(pagina ${CMAKE_BINARY_DIR}/man/${programa}.1)
        add_custom_command(OUTPUT ${pagina}.gz
            COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/man
            COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ${HELP2MAN} --no-info --locale=C.UTF-8
                --name "registro técnico de explotaciones de vacuno de carne" --output ${pagina} $<TARGET_FILE:${programa}>
            COMMAND gzip -9nf ${pagina}
            DEPENDS ${programa} VERBATIM)
        list(APPEND paginas ${pagina}.gz)
    endforeach()
    add_custom_target(man ALL DEPENDS ${paginas})
    install(FILES ${paginas} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()

add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/changelog.gz
    COMMAND sh -c "gzip -9nc '${CMAKE_SOURCE_DIR}/packaging/debian/changelog' > changelog.gz"
    DEPENDS ${CMAKE_SOURCE_DIR}/packaging/debian/changelog WORKING_DIRECTORY ${CMAKE_BINARY_DIR} VERBATIM)
add_custom_target(cambios ALL DEPENDS ${CMAKE_BINARY_DIR}/changelog.gz)
install(FILES ${CMAKE_BINARY_DIR}/changelog.gz ${CMAKE_SOURCE_DIR}/packaging/debian/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/pastorix)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME pastorix)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The PASTORIX authors <maintainers@pastorix.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "technical records of beef-cattle farms")
set(CPACK_PACKAGE_DESCRIPTION "With Pastorix, field veterinarians and a central office keep the technical
records of beef-cattle farms: farmers, cows, bulls, matings, calvings, calves,
fattening, health and yearly management. It derives the reproduction figures
of each cycle and the yearly technical indices of a farm, prints them, and
carries whole databases between office and stations. The program is in Spanish.")
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-urw-base35 | fonts-dejavu-core, libqt6svg6, qt6-qpa-plugins, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "evince | pdf-viewer, xdg-utils")
include(CPack)
