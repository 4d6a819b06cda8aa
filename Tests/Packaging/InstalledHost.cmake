# Run by ctest; see CMakeLists.txt beside this file.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\nended with ${result}:\n${output}${errors}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${WORK}")
file(WRITE "${WORK}/Film.en.srt" "1\n00:00:01,000 --> 00:00:02,000\nHello\n")
run("${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${WORK}/installed")
run("${CMAKE_COMMAND}" -S "${SOURCE}" -B "${WORK}/build" -G Ninja "-DCMAKE_PREFIX_PATH=${WORK}/installed"
    "-DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}" "-DCMAKE_CXX_FLAGS=${FLAGS}" "-DHypodermic_ROOT=${HYPODERMIC}")
run("${CMAKE_COMMAND}" --build "${WORK}/build")
run("${WORK}/build/minimal-host" "${WORK}/Film.mkv")
if(NOT output MATCHES "Film.en.srt \\[English\\] \\(SubRip\\).*1 soft track")
    message(FATAL_ERROR "The example host printed something else than expected:\n${output}")
endif()
