# Compiler options that hold for every target of the program, the tests and the benchmarks.
add_library(vorlain_options INTERFACE)
target_compile_options(vorlain_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
# Once it inlines, GCC 12 believes that Qt's string builder writes behind an empty string. These stay warnings.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(vorlain_options INTERFACE
        -Wno-error=stringop-overflow -Wno-error=stringop-overread -Wno-error=array-bounds -Wno-error=restrict
        -Wno-error=maybe-uninitialized)
endif()
target_compile_definitions(vorlain_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS
    QT_NO_FOREACH QT_USE_QSTRINGBUILDER)

if(VORLAIN_ASAN)
    # Global, so that every object of one binary agrees on the instrumentation.
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

if(VORLAIN_COVERAGE)
    # Atomic counters: several test programs add to the same files at a time.
    add_compile_options(--coverage -fprofile-update=atomic)
    add_link_options(--coverage)
endif()

if(VORLAIN_FUZZ)
    # Only clang has the fuzzer; every object counts the branches that an input takes.
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
