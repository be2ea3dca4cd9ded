# Compiler settings and the two functions that every folder's CMakeLists.txt uses.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
# What is installed is part of the program unless it says that it is part of the library.
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME program)
set(CMAKE_INSTALL_SO_NO_EXE ON)

find_package(PkgConfig REQUIRED)
# Not by pkg-config: users of the installed library find the driver manager by the same name.
find_package(ODBC REQUIRED)

add_library(zonaris_flags INTERFACE)
target_include_directories(zonaris_flags INTERFACE "${CMAKE_SOURCE_DIR}")
target_compile_options(zonaris_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 takes the text inside an optional variant for unset where it moves a number.
  target_compile_options(zonaris_flags INTERFACE -Wno-maybe-uninitialized)
endif()
if(ZONARIS_SANITIZE)
  target_compile_options(zonaris_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(zonaris_flags INTERFACE -fsanitize=address,undefined)
endif()
if(ZONARIS_FUZZ)
  target_compile_options(zonaris_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# zonaris_target_name(util out) -> zonaris_util; platform/zapp -> zonaris_zapp
function(zonaris_target_name folder out)
  get_filename_component(name "${folder}" NAME)
  set(${out} "zonaris_${name}" PARENT_SCOPE)
endfunction()

# zonaris_folder(db USES util platform/zapp PACKAGES ODBC::ODBC SOURCES Session.cpp ...)
# One static library for one folder. USES names the folders that its files may include; the
# includes are checked against this line by tools/check_includes.
function(zonaris_folder folder)
  cmake_parse_arguments(F "" "" "USES;PACKAGES;SOURCES" ${ARGN})
  zonaris_target_name(${folder} target)
  add_library(${target} STATIC ${F_SOURCES})
  # Our warnings and our source tree are nothing to users of the installed library.
  target_link_libraries(${target} PUBLIC $<BUILD_INTERFACE:zonaris_flags> ${F_PACKAGES})
  target_compile_features(${target} PUBLIC cxx_std_20)
  foreach(used IN LISTS F_USES)
    zonaris_target_name(${used} lower)
    target_link_libraries(${target} PUBLIC ${lower})
  endforeach()
endfunction()

# zonaris_tests(well [NAME suffix] [KINDS] [RECORD] LINKS zonaris_well zonaris_test_support SOURCES WellTest.cpp ...)
# One test program for one folder. With KINDS it runs once per database kind, and for the two
# dialects also behind an owner prefix, each in a process of its own, because the session
# freezes its function words at the first statement. With RECORD the statements that arrive at
# the driver are kept for the check that the shipped schema can run them.
function(zonaris_tests folder)
  cmake_parse_arguments(T "KINDS;RECORD" "NAME" "LINKS;SOURCES" ${ARGN})
  zonaris_target_name(${folder} target)
  string(REPLACE "zonaris_" "test_" program ${target})
  if(T_NAME)
    string(APPEND program "_${T_NAME}")
  endif()
  add_executable(${program} ${T_SOURCES})
  target_link_libraries(${program} PRIVATE zonaris_flags ${T_LINKS} GTest::gmock_main)
  if(TARGET desktopdb)
    add_dependencies(${program} desktopdb)
  endif()
  set(runs default)
  if(T_KINDS)
    set(runs kind0 kind1 kind2 kind3 kind5 kind0-prefix kind2-prefix)
  endif()
  foreach(run IN LISTS runs)
    add_test(NAME "${folder}${T_NAME}:${run}" COMMAND ${program})
    set(environment "ASAN_OPTIONS=exitcode=99:detect_leaks=1"
      "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/support/leaks.supp:print_suppressions=0"
      "UBSAN_OPTIONS=print_stacktrace=1" "QT_QPA_PLATFORM=offscreen"
      "ZONARIS_SETTINGS=") # no user's settings, whoever runs the tests
    if(run MATCHES "^kind([0-9])(-prefix)?$")
      list(APPEND environment "ZONARIS_TEST_KIND=${CMAKE_MATCH_1}")
      if(CMAKE_MATCH_2)
        list(APPEND environment "ZONARIS_TEST_PREFIX=GEO.")
      endif()
    endif()
    if(T_RECORD)
      list(APPEND environment
        "ZONARIS_TEST_RECORD=${CMAKE_BINARY_DIR}/statements/${program}-${run}.txt")
    endif()
    set_tests_properties("${folder}${T_NAME}:${run}" PROPERTIES ENVIRONMENT "${environment}")
  endforeach()
endfunction()
