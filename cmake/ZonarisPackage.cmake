# The Debian packages that `cpack -G DEB` makes of a build; see packaging/README.md.

set(ZONARIS_MAINTAINER "Zonaris maintainers <maintainers@zonaris.invalid>" CACHE STRING
  "Who answers for the packages: \"Name <address>\"")

set(packaging "${CMAKE_SOURCE_DIR}/packaging")
install(FILES "${packaging}/zonaris.desktop" DESTINATION share/applications)
install(FILES "${packaging}/zonaris.svg" DESTINATION share/icons/hicolor/scalable/apps)
install(FILES "${packaging}/copyright" "${CMAKE_SOURCE_DIR}/README.md"
  DESTINATION share/doc/zonaris)
install(DIRECTORY "${CMAKE_SOURCE_DIR}/docs" DESTINATION share/doc/zonaris
  FILES_MATCHING PATTERN "*.md")
install(DIRECTORY "${CMAKE_SOURCE_DIR}/examples/synthetic" DESTINATION share/doc/zonaris/examples)

install(FILES "${packaging}/copyright" DESTINATION share/doc/zonaris-dev COMPONENT library)
install(DIRECTORY "${CMAKE_SOURCE_DIR}/examples/library"
  DESTINATION share/doc/zonaris-dev/examples COMPONENT library)

# The version and the maintainer filled in, compressed without a time.
function(zonaris_compressed source name)
  configure_file("${packaging}/${source}" "${CMAKE_BINARY_DIR}/packaging/${name}" @ONLY)
  execute_process(COMMAND gzip -9nkf "${CMAKE_BINARY_DIR}/packaging/${name}"
    COMMAND_ERROR_IS_FATAL ANY)
endfunction()
zonaris_compressed(zonaris.1.in zonaris.1)
zonaris_compressed(changelog.in changelog)
install(FILES "${CMAKE_BINARY_DIR}/packaging/zonaris.1.gz" DESTINATION share/man/man1)
install(FILES "${CMAKE_BINARY_DIR}/packaging/changelog.gz" DESTINATION share/doc/zonaris)
install(FILES "${CMAKE_BINARY_DIR}/packaging/changelog.gz" DESTINATION share/doc/zonaris-dev
  COMPONENT library)

# A package needs what it holds, not the tests.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zonaris)
set(CPACK_PACKAGE_VENDOR "")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL program library)
set(CPACK_COMPONENT_PROGRAM_DESCRIPTION
  "Keeps wells, their samples and the fossils found in them in a relational\n\
 database, in one file or on a server, with a window and a command line.")
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION
  "The data core of Zonaris as a C++ library with a CMake package: sessions,\n\
 names of taxa, wells with their samples, interpretations.")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${ZONARIS_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME zonaris)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SHLIBDEPS ON)
# Without them there are no letters, or no italics for the names of taxa.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS "fonts-dejavu-core, fonts-dejavu-extra")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME zonaris-dev)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_DEPENDS "unixodbc-dev")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SUGGESTS "zonaris (= ${PROJECT_VERSION})")
include(CPack)
