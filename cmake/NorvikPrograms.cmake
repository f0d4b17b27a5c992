# SPDX-License-Identifier: MIT
# The programs as the system's user meets them: manual pages, completions, example languages and documents; of the
# workbench its menu entry, its description for software centres, the type of its files and their icons.
string(TIMESTAMP NORVIK_FECHA "%Y-%m-%d" UTC)
set(NORVIK_PAQUETE "${PROJECT_SOURCE_DIR}/paquete")
set(NORVIK_ICONOS "${CMAKE_INSTALL_DATADIR}/icons/hicolor")

function(norvik_install_program programa)
  configure_file("${NORVIK_PAQUETE}/${programa}.1" "${programa}.1" @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/${programa}.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
  install(FILES "${NORVIK_PAQUETE}/norvik.bash" RENAME ${programa}
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions")
  install(FILES "${NORVIK_PAQUETE}/${programa}.zsh" RENAME _${programa}
    DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/site-functions")
  install(FILES "${NORVIK_PAQUETE}/${programa}.fish" DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")
endfunction()

# A drawing, and where rsvg-convert is found pictures of it in the usual sizes.
find_program(NORVIK_RSVG rsvg-convert)
function(norvik_install_icon nombre clase)
  set(dibujo "${NORVIK_PAQUETE}/${nombre}.svg")
  install(FILES "${dibujo}" DESTINATION "${NORVIK_ICONOS}/scalable/${clase}")
  if(NOT NORVIK_RSVG)
    return()
  endif()
  foreach(lado 16 22 24 32 48 64 128 256)
    set(imagen "${PROJECT_BINARY_DIR}/iconos/${lado}/${nombre}.png")
    add_custom_command(OUTPUT "${imagen}" DEPENDS "${dibujo}" VERBATIM
      COMMAND "${CMAKE_COMMAND}" -E make_directory "${PROJECT_BINARY_DIR}/iconos/${lado}"
      COMMAND "${NORVIK_RSVG}" -w ${lado} -h ${lado} "${dibujo}" -o "${imagen}")
    list(APPEND imagenes "${imagen}")
    install(FILES "${imagen}" DESTINATION "${NORVIK_ICONOS}/${lado}x${lado}/${clase}")
  endforeach()
  add_custom_target(icono-${nombre} ALL DEPENDS ${imagenes})
endfunction()

norvik_install_program(norvik)
install(DIRECTORY ejemplos DESTINATION "${CMAKE_INSTALL_DATADIR}/norvik")
# The documents as they lie in the sources, so that what they refer to is there.
install(FILES LEEME.md README.md CHANGELOG.md CONTRIBUTING.md LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}")
install(DIRECTORY docs DESTINATION "${CMAKE_INSTALL_DOCDIR}" PATTERN "*.cpp" EXCLUDE)

if(TARGET norvik-taller)
  norvik_install_program(norvik-taller)
  install(TARGETS norvik-taller)
  install(FILES "${NORVIK_PAQUETE}/norvik-taller.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
  install(FILES "${NORVIK_PAQUETE}/org.norvik.taller.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
  install(FILES "${NORVIK_PAQUETE}/norvik.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages")
  norvik_install_icon(norvik-taller apps)
  norvik_install_icon(text-x-norvik mimetypes)
endif()
