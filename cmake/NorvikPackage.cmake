# SPDX-License-Identifier: MIT
# The programs as the system's user meets them, and Debian packages of them: norvik (the command), norvik-taller
# (the workbench), norvik-disenador (the plugin of Qt Designer) and norvik-dev (the libraries).
string(TIMESTAMP NORVIK_FECHA "%Y-%m-%d")
set(NORVIK_PAQUETE "${PROJECT_SOURCE_DIR}/paquete")

function(norvik_install_program programa componente)
  configure_file("${NORVIK_PAQUETE}/${programa}.1" "${programa}.1" @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/${programa}.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1"
    COMPONENT ${componente})
  install(FILES "${NORVIK_PAQUETE}/norvik.bash" RENAME ${programa}
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" COMPONENT ${componente})
endfunction()

norvik_install_program(norvik orden)
install(DIRECTORY ejemplos DESTINATION "${CMAKE_INSTALL_DATADIR}/norvik" COMPONENT orden)
# The documents as they lie in the sources, so that what they refer to is there.
install(FILES LEEME.md README.md CHANGELOG.md CONTRIBUTING.md DESTINATION "${CMAKE_INSTALL_DOCDIR}"
  COMPONENT orden)
install(DIRECTORY docs DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT orden PATTERN "*.cpp" EXCLUDE)

if(TARGET norvik-taller)
  norvik_install_program(norvik-taller taller)
  install(TARGETS norvik-taller RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT taller)
  install(FILES "${NORVIK_PAQUETE}/norvik-taller.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications"
    COMPONENT taller)
  install(FILES "${NORVIK_PAQUETE}/norvik-taller.svg"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps" COMPONENT taller)
  set(NORVIK_COMPONENTE_TALLER taller)
endif()

if(TARGET norvik-disenador)
  set(NORVIK_COMPONENTE_DISENADOR disenador)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "Norvik <norvik@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL orden ${NORVIK_COMPONENTE_TALLER} ${NORVIK_COMPONENTE_DISENADOR} desarrollo)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_ORDEN_DESCRIPTION "Lenguajes que se describen, se compilan y se usan\n Orden que compila especificaciones de lenguajes, y analiza y colorea textos con ellas.")
set(CPACK_DEBIAN_ORDEN_PACKAGE_NAME norvik)
set(CPACK_DEBIAN_ORDEN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_TALLER_DESCRIPTION "Taller de lenguajes: formularios con editores que los conocen\n Ventana en la que se escribe, se prueba y se usa un lenguaje.")
set(CPACK_DEBIAN_TALLER_PACKAGE_NAME norvik-taller)
set(CPACK_DEBIAN_TALLER_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_TALLER_PACKAGE_DEPENDS norvik)
set(CPACK_DEBIAN_TALLER_PACKAGE_RECOMMENDS qt6-translations-l10n)
set(CPACK_DEBIAN_DISENADOR_DESCRIPTION "Control Norvik para los formularios de Qt Designer\n Complemento con el que el diseñador de formularios lo coloca y edita sus propiedades.")
set(CPACK_DEBIAN_DISENADOR_PACKAGE_NAME norvik-disenador)
set(CPACK_DEBIAN_DISENADOR_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_DISENADOR_PACKAGE_RECOMMENDS "designer-qt6, norvik-dev")
set(CPACK_DEBIAN_DESARROLLO_DESCRIPTION "Control de edición que conoce lenguajes, para programas en C++\n Bibliotecas estáticas, cabeceras y paquete de CMake.")
set(CPACK_DEBIAN_DESARROLLO_PACKAGE_NAME norvik-dev)
set(CPACK_DEBIAN_DESARROLLO_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DESARROLLO_PACKAGE_RECOMMENDS qt6-base-dev)
include(CPack)
