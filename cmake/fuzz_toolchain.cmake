# Of the preset "fuzz": clang and its libFuzzer where they are there, else the usual compiler and the driver of
# tests/fuzz; in any case with the sanitizers of addresses and of undefined behaviour.
set(sanitizers "-fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all -fno-omit-frame-pointer")
find_program(MORVANE_CLANG NAMES clang++)
if(MORVANE_CLANG)
    execute_process(COMMAND ${MORVANE_CLANG} -print-runtime-dir
        OUTPUT_VARIABLE runtime_folder OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    file(GLOB runtime ${runtime_folder}/libclang_rt.fuzzer*.a)
endif()
if(runtime)
    set(CMAKE_CXX_COMPILER ${MORVANE_CLANG})
    set(MORVANE_LIBFUZZER ON)
    string(APPEND sanitizers " -fsanitize=fuzzer-no-link")
endif()
set(CMAKE_CXX_FLAGS_INIT ${sanitizers})
