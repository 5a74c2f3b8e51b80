# Runs GENERATOR into the folder FRESH and fails unless it makes the files of SAMPLES/raw, byte for byte and
# no others, and the facts that SAMPLES/README.md tells.
file(REMOVE_RECURSE ${FRESH})
execute_process(COMMAND ${GENERATOR} ${FRESH} COMMAND_ERROR_IS_FATAL ANY)

file(GLOB made RELATIVE ${FRESH} ${FRESH}/*)
file(GLOB kept RELATIVE ${SAMPLES}/raw ${SAMPLES}/raw/*)
if(NOT made STREQUAL kept)
    message(FATAL_ERROR "The generator makes other files than samples/raw holds:\n${made}\n${kept}")
endif()
foreach(name IN LISTS made)
    file(SHA256 ${FRESH}/${name} madeSum)
    file(SHA256 ${SAMPLES}/raw/${name} keptSum)
    if(NOT madeSum STREQUAL keptSum)
        message(SEND_ERROR "${name} differs from the file in samples/raw")
    endif()
endforeach()

execute_process(COMMAND ${GENERATOR} --facts OUTPUT_VARIABLE facts COMMAND_ERROR_IS_FATAL ANY)
file(READ ${SAMPLES}/README.md readme)
string(FIND "${readme}" "${facts}" place)
if(place EQUAL -1 OR facts STREQUAL "")
    message(SEND_ERROR "samples/README.md doesn't hold the output of traces-samples --facts")
endif()
