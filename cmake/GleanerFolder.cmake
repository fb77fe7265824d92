# One folder is one target with an alias; it links what is named and nothing else.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

add_library(gleaner_warnings INTERFACE)
target_compile_options(gleaner_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
# Not for who only uses it: another compiler may find more.
if(GLEANER_WERROR)
    target_compile_options(gleaner_warnings INTERFACE -Werror)
endif()
# g++ 12 finds overlaps that are not there where a literal and a string are joined at -O3 (GCC bug 105651).
target_compile_options(gleaner_warnings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(GLEANER_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
    add_compile_definitions(_GLIBCXX_ASSERTIONS) # indices and iterators of the standard containers as well
endif()

# A folder below another is named with its path: the target of workbench/store is workbench_store.
function(gleaner_target folder)
    string(REPLACE / _ name ${folder})
    string(REPLACE / _ below "${ARGN}")
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${folder}/*.cpp ${PROJECT_SOURCE_DIR}/${folder}/*.h)
    add_library(${name} STATIC ${sources})
    add_library(GleanerSvc::${name} ALIAS ${name})
    target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
                                              $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/GleanerSvc>)
    target_compile_features(${name} PUBLIC cxx_std_20)
    target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:gleaner_warnings>)
    target_link_libraries(${name} PUBLIC ${below})
endfunction()

# A folder of the library: built, and installed for find_package(GleanerSvc).
function(gleaner_folder name)
    gleaner_target(${name} ${ARGN})
    set(GLEANER_FOLDERS ${GLEANER_FOLDERS} ${name} PARENT_SCOPE)
    install(TARGETS ${name} EXPORT GleanerSvcTargets)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/${name} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/GleanerSvc
            FILES_MATCHING PATTERN *.h)
endfunction()

function(gleaner_package)
    set(place ${CMAKE_INSTALL_LIBDIR}/cmake/GleanerSvc)
    install(EXPORT GleanerSvcTargets NAMESPACE GleanerSvc:: FILE GleanerSvcConfig.cmake DESTINATION ${place})
    write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/GleanerSvcConfigVersion.cmake
                                     COMPATIBILITY SameMajorVersion)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/GleanerSvcConfigVersion.cmake DESTINATION ${place})
endfunction()
