# Installs the build into a folder of its own, then configures, builds and runs a project that finds it there.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\n${output}")
    endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/installed)
run(${CMAKE_COMMAND} -S ${CONSUMER} -B ${WORK}/build -G Ninja -DCMAKE_CXX_COMPILER=${CXX}
    -DCMAKE_PREFIX_PATH=${WORK}/installed)
run(${CMAKE_COMMAND} --build ${WORK}/build)
run(${WORK}/build/consumer)
