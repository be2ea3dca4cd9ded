# What an installation holds: the program with its driver (component "program") and the data core as
# a CMake package (component "library"). The program installs itself in app/CMakeLists.txt.

include(CMakePackageConfigHelpers)

set(zonaris_core util platform/zapp db taxonomy dict well interp)
set(zonaris_package_dir lib/cmake/Zonaris)
set(zonaris_header_dir include/zonaris)

# The headers keep their folders, so that one include directory serves `#include "db/Session.h"`.
set(zonaris_core_targets "")
foreach(folder IN LISTS zonaris_core)
  zonaris_target_name(${folder} target)
  if(TARGET ${target})
    list(APPEND zonaris_core_targets ${target})
    string(REPLACE "zonaris_" "" name ${target})
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
    install(DIRECTORY "${CMAKE_SOURCE_DIR}/${folder}/" DESTINATION ${zonaris_header_dir}/${folder}
      COMPONENT library FILES_MATCHING PATTERN "*.h" PATTERN "qt" EXCLUDE)
  endif()
endforeach()

install(TARGETS ${zonaris_core_targets} EXPORT ZonarisTargets
  ARCHIVE DESTINATION lib COMPONENT library
  INCLUDES DESTINATION ${zonaris_header_dir})
install(EXPORT ZonarisTargets NAMESPACE Zonaris:: DESTINATION ${zonaris_package_dir}
  COMPONENT library)

configure_package_config_file(
  "${CMAKE_SOURCE_DIR}/cmake/ZonarisConfig.cmake.in" "${CMAKE_BINARY_DIR}/ZonarisConfig.cmake"
  INSTALL_DESTINATION ${zonaris_package_dir} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${CMAKE_BINARY_DIR}/ZonarisConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(
  FILES "${CMAKE_BINARY_DIR}/ZonarisConfig.cmake" "${CMAKE_BINARY_DIR}/ZonarisConfigVersion.cmake"
  DESTINATION ${zonaris_package_dir} COMPONENT library)
