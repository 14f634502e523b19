# How every folder of src/ and tests/ becomes a target: one folder, one target, one QML module at most.

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

qt_standard_project_setup()
# Only what is written by hand can hold a Q_OBJECT: moc stays away from the many targets that Qt generates.
set(CMAKE_AUTOMOC OFF)
set(CMAKE_AUTOUIC OFF)
set(QT_QML_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml)

# Warnings hold for hand-written code only: what moc and the type registrar write is a system matter.
function(velm_warnings target)
  if(NOT VELM_CACHEGEN) # code that was compiled from QML would not pass
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Werror)
  endif()
  target_compile_definitions(${target} PRIVATE QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS
                                               QT_USE_QSTRINGBUILDER QT_STRICT_ITERATORS
                                               $<$<NOT:$<CONFIG:Release>>:QT_FORCE_ASSERTS>)
endfunction()

# velm_library(NAME [URI uri] SOURCES ... [QML ...] [SINGLETONS ...] [DEPENDS modules] LINKS ...)
# DEPENDS names the QML modules that the C++ types of this one build on, for qmllint.
# A static library; with URI it is a QML module too, whose plug-in the program imports by VELM_QML_PLUGINS.
function(velm_library name)
  cmake_parse_arguments(arg "" "URI" "SOURCES;QML;SINGLETONS;DEPENDS;LINKS;RESOURCES" ${ARGN})
  qt_add_library(${name} STATIC ${arg_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${arg_LINKS})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  velm_warnings(${name})
  if(NOT arg_URI)
    return()
  endif()
  foreach(file IN LISTS arg_SINGLETONS)
    set_source_files_properties(${file} PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
  endforeach()
  # File names in the module are flat: the folder below the target sorts them for people only.
  foreach(file IN LISTS arg_QML arg_SINGLETONS)
    get_filename_component(base ${file} NAME)
    set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS ${base})
  endforeach()
  set(cachegen NO_CACHEGEN)
  if(VELM_CACHEGEN)
    set(cachegen "")
  endif()
  qt_add_qml_module(${name} URI ${arg_URI} VERSION 1.0 RESOURCE_PREFIX /qml ${cachegen}
    QML_FILES ${arg_QML} ${arg_SINGLETONS} RESOURCES ${arg_RESOURCES} DEPENDENCIES ${arg_DEPENDS})
  # The generated type registration includes headers by their bare name.
  target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  set_property(GLOBAL APPEND PROPERTY VELM_QML_PLUGINS ${name}plugin)
endfunction()

# velm_test(NAME SOURCES ... LINKS ...): one QtTest program, run without a display.
function(velm_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE ${arg_LINKS} Qt6::Test)
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  velm_warnings(${name})
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES TIMEOUT 120
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_HASH_SEED=0;LC_ALL=C.UTF-8;TZ=UTC")
endfunction()
