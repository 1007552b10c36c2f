# What is installed, and where: the programs in bin, its data in share/zevlin, and what a Linux desktop
# wants to know about it.
include(GNUInstallDirs)

set(packaging ${CMAKE_SOURCE_DIR}/packaging/debian)
set(share ${CMAKE_INSTALL_DATADIR})

install(TARGETS zevlin zevlin_cards RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${CMAKE_BINARY_DIR}/stage/zevlin-files/ DESTINATION ${share}/zevlin)
# An installed data folder serves all players of the machine: with this file in it a first run takes
# copies, even where it could move the files.
install(FILES ${packaging}/zevlin.frm DESTINATION ${share}/zevlin)

install(FILES ${packaging}/zevlin-cards.bash RENAME zevlin-cards
        DESTINATION ${share}/bash-completion/completions)
install(FILES ${packaging}/zevlin.desktop DESTINATION ${share}/applications)
install(FILES ${packaging}/example.zevlin.zevlin.metainfo.xml DESTINATION ${share}/metainfo)
install(FILES ${packaging}/zevlin.mime.xml RENAME zevlin.xml DESTINATION ${share}/mime/packages)
# The program and the cards have the same icon.
function(install_icon kind name)
  set(icons ${CMAKE_SOURCE_DIR}/assets/icons)
  install(FILES ${icons}/zevlin.svg RENAME ${name}.svg
          DESTINATION ${share}/icons/hicolor/scalable/${kind})
  foreach(size 16 24 32 48 64 128 256)
    install(FILES ${icons}/zevlin-${size}.png RENAME ${name}.png
            DESTINATION ${share}/icons/hicolor/${size}x${size}/${kind})
  endforeach()
endfunction()
install_icon(apps zevlin)
install_icon(mimetypes application-x-zevlin-card)

# install_compressed(<file> <folder> <name>): without a time stamp, so that a package comes out alike.
function(install_compressed file folder name)
  set(compressed ${CMAKE_BINARY_DIR}/install/${name}.gz)
  add_custom_command(OUTPUT ${compressed}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/install
    COMMAND gzip -9nc ${file} > ${compressed}
    DEPENDS ${file} VERBATIM)
  set_property(GLOBAL APPEND PROPERTY ZEVLIN_COMPRESSED ${compressed})
  install(FILES ${compressed} DESTINATION ${folder})
endfunction()
install_compressed(${packaging}/zevlin.1 ${CMAKE_INSTALL_MANDIR}/man1 zevlin.1)
install_compressed(${packaging}/zevlin-cards.1 ${CMAKE_INSTALL_MANDIR}/man1 zevlin-cards.1)
install_compressed(${packaging}/changelog ${CMAKE_INSTALL_DOCDIR} changelog)
install_compressed(${CMAKE_SOURCE_DIR}/CHANGELOG.md ${CMAKE_INSTALL_DOCDIR} NEWS)
install(FILES ${packaging}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
get_property(compressed GLOBAL PROPERTY ZEVLIN_COMPRESSED)
add_custom_target(install_files ALL DEPENDS ${compressed})
