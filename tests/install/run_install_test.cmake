# cmake -DBUILD_DIR=... -DWORK_DIR=... -DCONSUMER_SOURCE_DIR=... -DQMLLINT=... -P run_install_test.cmake

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "Failed (${result}): ${ARGN}\n${out}\n${err}")
    endif()
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
set(staging ${WORK_DIR}/staging)
set(moved ${WORK_DIR}/moved/VynUI)

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${staging})
file(MAKE_DIRECTORY ${WORK_DIR}/moved)
file(RENAME ${staging} ${moved})

foreach(expected
        lib/libVynUI.so lib/libVynCommon.so lib/libQtCommons.so
        lib/qml/VynUI/qmldir lib/qml/VynUI/libVynUIPlugin.so lib/qml/VynUI/VynUI.qmltypes
        include/VynUI/vynuiplugin.h include/VynUI/vynviewutils.h
        include/VynCommon/vynproxyparampath.h include/QtCommons/qtcommonsconstants.h
        lib/cmake/VynUI/VynUIConfig.cmake)
    if(NOT EXISTS ${moved}/${expected})
        message(FATAL_ERROR "The installed tree lacks ${expected}")
    endif()
endforeach()

# Every document and script the installed qmldir names is installed where it says.
set(module ${moved}/lib/qml/VynUI)
file(STRINGS ${module}/qmldir qmldir_lines)
set(named_files)
foreach(line ${qmldir_lines})
    if(line MATCHES "^(singleton )?[A-Za-z_][A-Za-z0-9_]* [0-9.]+ ([^ ]+\\.(qml|js))$")
        list(APPEND named_files ${CMAKE_MATCH_2})
    endif()
endforeach()
list(LENGTH named_files named_count)
if(named_count EQUAL 0)
    message(FATAL_ERROR "The installed qmldir names no documents:\n${qmldir_lines}")
endif()
foreach(named ${named_files})
    if(NOT EXISTS ${module}/${named})
        message(FATAL_ERROR "The installed qmldir names ${named}, which is not installed")
    endif()
endforeach()

# The tools see what the engine sees: the host's document and the installed documents lint
# against the installed tree without a single message, at any level.
if(NOT QMLLINT OR NOT EXISTS ${QMLLINT})
    message(FATAL_ERROR "qmllint is needed to check the installed module (got '${QMLLINT}')")
endif()
list(TRANSFORM named_files PREPEND ${module}/)
execute_process(
    COMMAND ${QMLLINT} -I ${moved}/lib/qml
        ${CONSUMER_SOURCE_DIR}/Host.qml ${named_files}
    RESULT_VARIABLE lint_result OUTPUT_VARIABLE lint_out ERROR_VARIABLE lint_err)
if(NOT lint_result EQUAL 0 OR NOT "${lint_out}${lint_err}" STREQUAL "")
    message(FATAL_ERROR "qmllint against the installed tree (${lint_result}):\n${lint_out}${lint_err}")
endif()

run(${CMAKE_COMMAND} -S ${CONSUMER_SOURCE_DIR} -B ${WORK_DIR}/consumer-build
    -G ${CMAKE_GENERATOR} -DCMAKE_PREFIX_PATH=${moved})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/consumer-build)
run(${WORK_DIR}/consumer-build/vynui-consumer)
message(STATUS "The installed package builds and runs a host.")
