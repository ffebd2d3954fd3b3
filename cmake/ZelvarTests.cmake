# SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
# SPDX-License-Identifier: MIT
#
# How CTest runs the test programs: as programs, split into shards that run side by side. Starting a
# program for each of its tests takes longer than most of the tests.

# A test that keeps a core busy takes this many of CTest's jobs, one that mostly waits takes one:
# `ctest -j` with this many jobs a core keeps the cores busy and the waiting tests side by side.
set(ZELVAR_JOBS_PER_CORE 4)

# zelvar_add_tests(program [SHARDS number] [WAITS])
# Runs the GoogleTest program as the tests `program-1`, `program-2`, ... Each leaves its results in
# results/ of the build folder, where tools/count-tests finds them.
# WAITS: its tests wait for a line or a process rather than compute.
function(zelvar_add_tests program)
    cmake_parse_arguments(arg "WAITS" "SHARDS" "" ${ARGN})
    if(NOT arg_SHARDS)
        set(arg_SHARDS 1)
    endif()
    set(jobs ${ZELVAR_JOBS_PER_CORE})
    if(arg_WAITS)
        set(jobs 1)
    endif()
    foreach(shard RANGE 1 ${arg_SHARDS})
        math(EXPR index "${shard} - 1")
        set(name ${program}-${shard})
        add_test(NAME ${name}
                 COMMAND ${program} --gtest_brief=1
                         "--gtest_output=xml:${CMAKE_BINARY_DIR}/results/${name}.xml")
        set_tests_properties(
            ${name}
            PROPERTIES ENVIRONMENT
                       "GTEST_TOTAL_SHARDS=${arg_SHARDS};GTEST_SHARD_INDEX=${index}"
                       PROCESSORS ${jobs}
                       TIMEOUT 900)
    endforeach()
endfunction()
