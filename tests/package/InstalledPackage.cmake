# Installs BUILD into a new prefix, moves the prefix (a package must not remember where it was installed),
# then builds and runs the project in HOST against what is there.
cmake_minimum_required(VERSION 3.25)

function(run)
    execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE ${WORK}/installed ${WORK}/moved ${WORK}/host)
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/installed)
file(RENAME ${WORK}/installed ${WORK}/moved)

run(${CMAKE_COMMAND} -S ${HOST} -B ${WORK}/host -G Ninja -D CMAKE_PREFIX_PATH=${WORK}/moved
    -D CMAKE_CXX_COMPILER=${COMPILER} -D CMAKE_CXX_FLAGS=${FLAGS} -D WITH_QT=${QT})
run(${CMAKE_COMMAND} --build ${WORK}/host)
set(sample ${HOST}/../../../samples/raw/rl_gsm900_antenna_201pts.raw)
run(${WORK}/host/host ${sample} WORKING_DIRECTORY ${WORK}/host)
if(QT)
    run(${WORK}/host/qt-host ${sample} WORKING_DIRECTORY ${WORK}/host)
endif()
if(NOT EXISTS ${WORK}/host/trace.svg OR NOT EXISTS ${WORK}/host/trace.vna)
    message(FATAL_ERROR "the example wrote no picture or no file")
endif()
if(EXISTS ${WORK}/moved/bin/traces)
    run(${WORK}/moved/bin/traces formats)
endif()
