# What stands beside the program: installed under share/, and found at the same place relative to the program in
# the build folder, so that what is run from there is what is delivered. Nothing is compiled in: any prefix will do.
set(quillmere_data ${CMAKE_SOURCE_DIR}/data)
set(beside_folder ${CMAKE_INSTALL_DATADIR}/quillmere)
file(GLOB beside CONFIGURE_DEPENDS ${quillmere_data}/beside/* "${quillmere_data}/*.html")

install(FILES ${beside} DESTINATION ${beside_folder})
install(DIRECTORY ${quillmere_data}/Skin ${quillmere_data}/symbols DESTINATION ${beside_folder})
install(DIRECTORY ${quillmere_data}/icons/hicolor DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)
install(FILES ${quillmere_data}/quillmere.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${quillmere_data}/quillmere.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${quillmere_data}/quillmere.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES LICENSE ${quillmere_data}/LICENSE-data DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(built_beside ${CMAKE_BINARY_DIR}/share/quillmere)
file(MAKE_DIRECTORY ${built_beside})
foreach(file IN LISTS beside ITEMS ${quillmere_data}/Skin ${quillmere_data}/symbols)
  get_filename_component(name ${file} NAME)
  file(CREATE_LINK ${file} ${built_beside}/${name} SYMBOLIC)
endforeach()
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/share/icons)
file(CREATE_LINK ${quillmere_data}/icons/hicolor ${CMAKE_BINARY_DIR}/share/icons/hicolor SYMBOLIC)
