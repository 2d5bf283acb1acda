# What an installed Roamlytix consists of, and the Debian package: cmake --build build/release --target package
set(CMAKE_INSTALL_DOCDIR share/doc/roamlytix)
include(GNUInstallDirs)

set(RLX_DATA ${CMAKE_INSTALL_DATADIR}/roamlytix)
set(RLX_PACKAGING ${CMAKE_SOURCE_DIR}/packaging)
set(RLX_APP_ID org.roamlytix.Roamlytix)

foreach(program rlx roamlytix roamlytix-feedd)
    if(TARGET ${program})
        install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    endif()
endforeach()
install(TARGETS rlx_http rlx_zones rlx_pictures LIBRARY DESTINATION lib/roamlytix)
install(DIRECTORY data/ DESTINATION ${RLX_DATA} PATTERN make EXCLUDE PATTERN icons EXCLUDE)
# Language modules, as far as there are any.
install(DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/LangsRes DESTINATION ${RLX_DATA} OPTIONAL)
install(DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/translate DESTINATION ${CMAKE_INSTALL_DOCDIR})

configure_file(${RLX_PACKAGING}/${RLX_APP_ID}.metainfo.xml.in packaging/${RLX_APP_ID}.metainfo.xml @ONLY)
configure_file(${RLX_PACKAGING}/systemd/roamlytix-feedd.service.in packaging/roamlytix-feedd.service @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/packaging/${RLX_APP_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${RLX_PACKAGING}/${RLX_APP_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES data/icons/roamlytix.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
    RENAME ${RLX_APP_ID}.svg)
install(FILES ${CMAKE_BINARY_DIR}/packaging/roamlytix-feedd.service ${RLX_PACKAGING}/systemd/roamlytix-feedd.socket
    DESTINATION lib/systemd/user)
install(FILES ${RLX_PACKAGING}/completion/rlx DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)

# Debian wants pages and changelog packed, without a time in them.
function(rlx_install_packed source destination name)
    set(packed ${CMAKE_BINARY_DIR}/packaging/${name}.gz)
    execute_process(COMMAND gzip -9nc INPUT_FILE ${source} OUTPUT_FILE ${packed} COMMAND_ERROR_IS_FATAL ANY)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
    install(FILES ${packed} DESTINATION ${destination})
endfunction()
foreach(program roamlytix rlx roamlytix-feedd)
    rlx_install_packed(${RLX_PACKAGING}/man/${program}.1 ${CMAKE_INSTALL_MANDIR}/man1 ${program}.1)
endforeach()
configure_file(${RLX_PACKAGING}/debian/changelog.in packaging/changelog.text @ONLY)
rlx_install_packed(${CMAKE_BINARY_DIR}/packaging/changelog.text ${CMAKE_INSTALL_DOCDIR} changelog)
install(FILES ${RLX_PACKAGING}/debian/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME roamlytix)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_CONTACT "The Roamlytix developers <maintainers@roamlytix.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "travel companion with clocks, map, weather and currencies")
set(CPACK_PACKAGE_DESCRIPTION "World clocks under each city's daylight-saving rule, a world map with its
night side, sunrise and sunset, weather, currency rates and news from a
feed server that comes with it, a unit converter, dialing codes, clothing
sizes, packing lists, tip and tax: in a window and on the command line.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS tzdata)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, fonts-noto-cjk, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
