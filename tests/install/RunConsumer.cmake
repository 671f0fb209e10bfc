file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)

function(run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "failed: ${ARGV}\n${out}\n${err}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix} --component Unspecified)
run(${CMAKE_COMMAND} -S ${CONSUMER_DIR} -B ${WORK_DIR}/build -DCMAKE_PREFIX_PATH=${prefix})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
set(ENV{LD_LIBRARY_PATH} "${prefix}/lib:$ENV{LD_LIBRARY_PATH}")
set(ENV{QT_QPA_PLATFORM} offscreen)
run(${WORK_DIR}/build/consumer)

# The pkg-config file names the library and its headers.
file(GLOB pc_file ${prefix}/lib*/pkgconfig/lxcomp.pc ${prefix}/lib/*/pkgconfig/lxcomp.pc)
if(NOT pc_file)
  message(FATAL_ERROR "lxcomp.pc was not installed")
endif()
