# Uses the library as other projects do. HOW says what is tried; tests/package/CMakeLists.txt hands the rest over.
set(_options -G ${GENERATOR} -DCMAKE_MAKE_PROGRAM=${MAKE_PROGRAM} -DCMAKE_CXX_COMPILER=${CXX_COMPILER}
    -DCMAKE_CXX_FLAGS=${CXX_FLAGS} -DCMAKE_EXE_LINKER_FLAGS=${EXE_LINKER_FLAGS} -DWITH_EXCHANGE=${EXCHANGE})
set(_configuration)
if(SEVERAL_BUILD_TYPES)
    # One of them is enough; other generators get none, as many a project leaves it.
    list(APPEND _options -DCMAKE_CONFIGURATION_TYPES=${CONFIG})
    set(_configuration --config ${CONFIG})
endif()

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\n${output}")
    endif()
endfunction()

# build(SOURCE BINARY OPTION...): configures and builds a project, and runs its tests.
function(build source binary)
    run(${CMAKE_COMMAND} -S ${source} -B ${binary} ${_options} ${ARGN})
    cmake_host_system_information(RESULT cores QUERY NUMBER_OF_LOGICAL_CORES)
    run(${CMAKE_COMMAND} --build ${binary} ${_configuration} --parallel ${cores})
    run(${CMAKE_CTEST_COMMAND} --test-dir ${binary} -C "${CONFIG}" --output-on-failure --no-tests=error)
endfunction()

# expect_installed(PREFIX FILE...): exactly these files are there.
function(expect_installed prefix)
    file(GLOB_RECURSE files RELATIVE ${prefix} ${prefix}/*)
    if(NOT files STREQUAL "${ARGN}")
        message(FATAL_ERROR "installed are \"${files}\", not \"${ARGN}\"")
    endif()
endfunction()

set(_consumer ${SOURCE_DIR}/tests/package/consumer)
set(_prefix ${WORK_DIR}/moved) # where package.install leaves the library
if(HOW STREQUAL "install")
    # Moved after it was installed: nothing in it may know where it was.
    file(REMOVE_RECURSE ${WORK_DIR}/prefix ${_prefix})
    run(${CMAKE_COMMAND} --install ${BUILD_DIR} ${_configuration} --prefix ${WORK_DIR}/prefix)
    file(RENAME ${WORK_DIR}/prefix ${_prefix})
    file(GLOB_RECURSE _inner ${_prefix}/*internal*)
    if(_inner)
        message(FATAL_ERROR "inner headers are installed: ${_inner}")
    endif()
    # The headers are those that were meant.
    file(STRINGS ${SOURCE_DIR}/tests/package/installed.txt _headers REGEX " include/")
    list(TRANSFORM _headers REPLACE "^.* " "")
    if(NOT EXCHANGE)
        list(FILTER _headers EXCLUDE REGEX "^include/krm/exchange/")
    endif()
    file(GLOB_RECURSE _found RELATIVE ${_prefix} ${_prefix}/include/*)
    list(SORT _headers)
    list(SORT _found)
    if(NOT _found STREQUAL _headers)
        message(FATAL_ERROR "tests/package/installed.txt lists\n${_headers}\nand installed are\n${_found}")
    endif()
elseif(HOW STREQUAL "installed")
    file(REMOVE_RECURSE ${WORK_DIR}/installed)
    build(${_consumer} ${WORK_DIR}/installed -DCMAKE_PREFIX_PATH=${_prefix})
elseif(HOW STREQUAL "subdirectory")
    # Static and as a unity build, so that the whole library compiles quickly and both are tried.
    file(REMOVE_RECURSE ${WORK_DIR}/subdirectory ${WORK_DIR}/static ${WORK_DIR}/static-moved)
    build(${_consumer} ${WORK_DIR}/subdirectory/build -DKRM_SOURCE_DIR=${SOURCE_DIR} -DBUILD_SHARED_LIBS=OFF
        -DKRM_BUILD_EXCHANGE=${EXCHANGE} -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=16)
    run(${CMAKE_COMMAND} --install ${WORK_DIR}/subdirectory/build ${_configuration}
        --prefix ${WORK_DIR}/subdirectory/prefix)
    expect_installed(${WORK_DIR}/subdirectory/prefix share/consumer/CMakeLists.txt)
    # Who wants it installed along gets it: the static libraries, for another consumer.
    run(${CMAKE_COMMAND} -DKRM_INSTALL=ON ${WORK_DIR}/subdirectory/build)
    run(${CMAKE_COMMAND} --install ${WORK_DIR}/subdirectory/build ${_configuration}
        --prefix ${WORK_DIR}/static/prefix)
    file(RENAME ${WORK_DIR}/static/prefix ${WORK_DIR}/static-moved)
    build(${_consumer} ${WORK_DIR}/static/build -DCMAKE_PREFIX_PATH=${WORK_DIR}/static-moved)
elseif(HOW STREQUAL "fetch_content")
    # Only what the one program needs is built: that keeps this test quick.
    file(REMOVE_RECURSE ${WORK_DIR}/fetch_content)
    run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/tests/package/fetch_content -B ${WORK_DIR}/fetch_content ${_options}
        -DKRM_SOURCE_DIR=${SOURCE_DIR} -DBUILD_SHARED_LIBS=OFF)
    run(${CMAKE_COMMAND} --build ${WORK_DIR}/fetch_content ${_configuration} --target platform_string)
    run(${CMAKE_CTEST_COMMAND} --test-dir ${WORK_DIR}/fetch_content -C "${CONFIG}" --output-on-failure --no-tests=error)
elseif(HOW STREQUAL "contributing")
    # The program that CONTRIBUTING.md shows: its files are the fenced blocks whose first line names one, and the block
    # paint.log is what the program writes.
    file(READ ${SOURCE_DIR}/CONTRIBUTING.md _text)
    set(_program ${WORK_DIR}/contributing)
    file(REMOVE_RECURSE ${_program})
    foreach(_fence "cmake CMakeLists.txt" "cpp paint.h" "cpp paint.cpp" "cpp main.cpp" "text paint.log")
        string(FIND "${_text}" "\n```${_fence}\n" _begin)
        if(_begin EQUAL -1)
            message(FATAL_ERROR "CONTRIBUTING.md has no block \"```${_fence}\"")
        endif()
        string(LENGTH "\n```${_fence}\n" _length)
        math(EXPR _begin "${_begin} + ${_length}")
        string(SUBSTRING "${_text}" ${_begin} -1 _block)
        string(FIND "${_block}" "\n```" _end)
        math(EXPR _end "${_end} + 1")
        string(SUBSTRING "${_block}" 0 ${_end} _block)
        string(REGEX REPLACE "^[a-z]+ " "" _name "${_fence}")
        file(WRITE ${_program}/${_name} "${_block}")
    endforeach()
    run(${CMAKE_COMMAND} -S ${_program} -B ${_program}/build ${_options} -DCMAKE_PREFIX_PATH=${_prefix}
        -DCMAKE_RUNTIME_OUTPUT_DIRECTORY=${_program}/$<1:bin>)
    run(${CMAKE_COMMAND} --build ${_program}/build ${_configuration})
    execute_process(COMMAND ${_program}/bin/paint RESULT_VARIABLE _result ERROR_VARIABLE _log)
    file(READ ${_program}/paint.log _expected)
    if(NOT _result EQUAL 0 OR NOT _log STREQUAL _expected)
        message(FATAL_ERROR "the program ends with ${_result} and writes\n${_log}instead of\n${_expected}")
    endif()
else()
    message(FATAL_ERROR "there is no way \"${HOW}\"")
endif()
