# cmake -DBUILD_DIR=... -DWORK_DIR=... -DCONSUMER_SOURCE_DIR=... -P run_install_test.cmake

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

run(${CMAKE_COMMAND} -S ${CONSUMER_SOURCE_DIR} -B ${WORK_DIR}/consumer-build
    -G ${CMAKE_GENERATOR} -DCMAKE_PREFIX_PATH=${moved})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/consumer-build)
run(${WORK_DIR}/consumer-build/vynui-consumer)
message(STATUS "The installed package builds and runs a host.")
