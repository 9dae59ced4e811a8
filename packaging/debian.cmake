# The Debian packages: what they hold besides the programs, and what their heads say.

string(TIMESTAMP datum "%a, %d %b %Y %H:%M:%S +0000" UTC) # of SOURCE_DATE_EPOCH, where that is set

# gepackt(file folder name component): installs it gzipped, as Debian wants texts.
function(gepackt datei ordner name komponente)
    install(CODE "
        set(ordner \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${ordner}\")
        file(MAKE_DIRECTORY \"\${ordner}\")
        message(STATUS \"Installing: \${ordner}/${name}.gz\")
        execute_process(COMMAND gzip -9nc INPUT_FILE \"${datei}\" OUTPUT_FILE \"\${ordner}/${name}.gz\"
            COMMAND_ERROR_IS_FATAL ANY)
        file(CHMOD \"\${ordner}/${name}.gz\" PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
        " COMPONENT ${komponente})
endfunction()

# verweis(target folder name component): a symbolic link.
function(verweis ziel ordner name komponente)
    install(CODE "
        set(ordner \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${ordner}\")
        file(MAKE_DIRECTORY \"\${ordner}\")
        message(STATUS \"Installing: \${ordner}/${name}\")
        file(CREATE_LINK \"${ziel}\" \"\${ordner}/${name}\" SYMBOLIC)
        " COMPONENT ${komponente})
endfunction()

# Every package names the rights and tells what changed.
foreach(art programm fenster doku)
    set(paket zepholt-${art})
    string(REGEX REPLACE "-programm$" "" paket ${paket})
    string(REGEX REPLACE "-doku$" "-doc" paket ${paket})
    configure_file(debian/changelog.in ${paket}.changelog @ONLY)
    configure_file(debian/copyright.in ${paket}.copyright @ONLY)
    gepackt(${CMAKE_CURRENT_BINARY_DIR}/${paket}.changelog share/doc/${paket} changelog ${art})
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${paket}.copyright DESTINATION share/doc/${paket} RENAME copyright
        COMPONENT ${art})
    if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/debian/${paket}.lintian-overrides)
        install(FILES debian/${paket}.lintian-overrides DESTINATION share/lintian/overrides RENAME ${paket}
            COMPONENT ${art})
    endif()
endforeach()

# zepholt. Who has set none of the three languages reads the German pages.
foreach(seite IN LISTS handbuch)
    foreach(sprache de fr it)
        gepackt(${CMAKE_CURRENT_SOURCE_DIR}/man/${sprache}/${seite} share/man/${sprache}/man1 ${seite} programm)
    endforeach()
    verweis(../de/man1/${seite}.gz share/man/man1 ${seite}.gz programm)
endforeach()
install(FILES completion/zepholt.bash DESTINATION share/bash-completion/completions RENAME zepholt COMPONENT programm)
verweis(zepholt share/bash-completion/completions zepholt-bericht programm)
install(FILES completion/_zepholt DESTINATION share/zsh/vendor-completions COMPONENT programm)

# zepholt-fenster
install(FILES ${CMAKE_SOURCE_DIR}/desktop/zepholt-pruefen.desktop DESTINATION share/applications COMPONENT fenster)
install(FILES ${CMAKE_SOURCE_DIR}/src/window/bild/zepholt.png DESTINATION share/icons/hicolor/64x64/apps COMPONENT fenster)
install(FILES mime/zepholt.xml DESTINATION share/mime/packages COMPONENT fenster)

# zepholt-doc, with the pages of the codes from hilfe/
file(GLOB lies RELATIVE ${CMAKE_SOURCE_DIR} ${CMAKE_SOURCE_DIR}/README*.md)
foreach(datei ${lies} CHANGELOG.md)
    install(FILES ${CMAKE_SOURCE_DIR}/${datei} DESTINATION ${ZIEL_DOKU} COMPONENT doku)
endforeach()
install(DIRECTORY ${CMAKE_SOURCE_DIR}/docs DESTINATION ${ZIEL_DOKU} COMPONENT doku PATTERN codes EXCLUDE)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/samples/quellen DESTINATION ${ZIEL_DOKU}/samples COMPONENT doku)

set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL programm fenster doku)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES OFF) # the linker has done it
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${ZEPHOLT_KONTAKT})
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)

# The first line of a description is CPACK_PACKAGE_DESCRIPTION_SUMMARY.
set(CPACK_DEBIAN_PROGRAMM_PACKAGE_NAME zepholt)
set(CPACK_DEBIAN_PROGRAMM_PACKAGE_SECTION text)
set(CPACK_DEBIAN_PROGRAMM_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PROGRAMM_PACKAGE_RECOMMENDS "zepholt-doc, python3") # python3: zepholt-stapel
set(CPACK_DEBIAN_PROGRAMM_PACKAGE_SUGGESTS "zepholt-fenster")
set(CPACK_DEBIAN_PROGRAMM_DESCRIPTION
"Tests exchange files of the trade (.01S and .E1S) field by field, record by
record and against the VLT catalogue, writes every finding into a protocol,
and makes a report of it that a person reads.")

set(CPACK_DEBIAN_FENSTER_PACKAGE_NAME zepholt-fenster)
set(CPACK_DEBIAN_FENSTER_PACKAGE_SECTION text)
set(CPACK_DEBIAN_FENSTER_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_FENSTER_PACKAGE_DEPENDS "zepholt (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_FENSTER_PACKAGE_RECOMMENDS "xdg-utils, zenity | kdialog")
set(CPACK_DEBIAN_FENSTER_DESCRIPTION
"The progress window of zepholt, and what a desktop needs to open an exchange
file with it: an entry among the applications, an icon, the kinds of file.")

set(CPACK_DEBIAN_DOKU_PACKAGE_NAME zepholt-doc)
set(CPACK_DEBIAN_DOKU_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOKU_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DOKU_DESCRIPTION
"The documents of zepholt, and a folder of pages that explain each of its codes
in German, French and Italian, with an example and how to repair the file.")
