# One folder is one target with an alias; it links what is named and nothing else. The compiler so enforces which
# folder may know which.
add_library(gleaner_warnings INTERFACE)
target_compile_options(gleaner_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
if(GLEANER_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

function(gleaner_folder name)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${name}/*.cpp ${PROJECT_SOURCE_DIR}/${name}/*.h)
    add_library(${name} STATIC ${sources})
    add_library(GleanerSvc::${name} ALIAS ${name})
    target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
                                              $<INSTALL_INTERFACE:include/GleanerSvc>)
    target_compile_features(${name} PUBLIC cxx_std_20)
    target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:gleaner_warnings>)
    foreach(below IN LISTS ARGN)
        target_link_libraries(${name} PUBLIC ${below})
    endforeach()
endfunction()
