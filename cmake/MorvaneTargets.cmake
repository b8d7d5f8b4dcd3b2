# What every target of the program shares, and the functions that make libraries and tests.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    # Without these it leaves out what is compiled with precompiled headers.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE_PROGRAM})
endif()

# Linking the tests takes a quarter of the time with this linker.
find_program(MOLD_PROGRAM mold)
if(MOLD_PROGRAM)
    add_link_options(-fuse-ld=mold)
endif()

add_library(morvane_options INTERFACE)
target_compile_options(morvane_options INTERFACE -Wall -Wextra -Wpedantic)
if(MORVANE_WARNINGS_AS_ERRORS)
    target_compile_options(morvane_options INTERFACE -Werror)
endif()
if(MORVANE_SANITIZE)
    target_compile_options(morvane_options INTERFACE -fsanitize=${MORVANE_SANITIZE} -fno-omit-frame-pointer)
    target_link_options(morvane_options INTERFACE -fsanitize=${MORVANE_SANITIZE})
endif()
target_compile_definitions(morvane_options INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)

# morvane_library(timeline SOURCES ... LINKS ...): the static library morvane_timeline, alias Morvane::timeline.
function(morvane_library name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;LINKS")
    add_library(morvane_${name} STATIC ${ARG_SOURCES})
    add_library(Morvane::${name} ALIAS morvane_${name})
    # The headers of a few files cost more than the files: compiled together they take a quarter of the time.
    set_target_properties(morvane_${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
    target_include_directories(morvane_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(morvane_${name} PUBLIC ${ARG_LINKS} PRIVATE morvane_options)
endfunction()

# Where modules lie, below the prefix as below the folder of the build, and the name of their one function.
set(MORVANE_MODULE_FOLDER ${CMAKE_INSTALL_LIBDIR}/morvane)
string(MAKE_C_IDENTIFIER "morvane_${PROJECT_VERSION}_${MORVANE_BUILD_FIELD}" MORVANE_MODULE_ENTRY)

# morvane_module(encoder SOURCES ... LINKS ...): a part that the program loads as the ProgramModule of that name. The
# sources define the function MORVANE_MODULE_ENTRY; nothing else can be seen from outside. What is linked into it is
# its own copy, so it must not hold state that the program shares.
function(morvane_module name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;LINKS")
    add_library(morvane_${name}_module MODULE ${ARG_SOURCES})
    set_target_properties(morvane_${name}_module PROPERTIES
        PREFIX "" OUTPUT_NAME ${name} LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${MORVANE_MODULE_FOLDER}
        CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
    target_include_directories(morvane_${name}_module PRIVATE ${PROJECT_SOURCE_DIR}/src)
    target_compile_definitions(morvane_${name}_module PRIVATE MORVANE_MODULE_ENTRY=${MORVANE_MODULE_ENTRY})
    target_link_libraries(morvane_${name}_module PRIVATE ${ARG_LINKS} morvane_options)
    # A symbol that no library has shows when the module is loaded, not when it is called.
    target_link_options(morvane_${name}_module PRIVATE -Wl,--exclude-libs,ALL -Wl,--as-needed -Wl,-z,now)
    install(TARGETS morvane_${name}_module LIBRARY DESTINATION ${MORVANE_MODULE_FOLDER})
endfunction()

# What the makers and the users of precompiled headers must have in common: the kind of code that libraries and programs
# are by themselves is not, and where a test lies nobody asks for.
add_library(morvane_test_headers INTERFACE)
target_include_directories(morvane_test_headers INTERFACE ${PROJECT_SOURCE_DIR}/tests)
target_compile_options(morvane_test_headers INTERFACE
    -fPIC -UQT_TESTCASE_BUILDDIR -UQT_TESTCASE_SOURCEDIR $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
target_link_libraries(morvane_test_headers INTERFACE Qt6::Test)

# Reading the headers is most of the work of compiling a test. Two libraries have read them for all: one for tests that
# link the whole program, one for those that link a part of it with frames or pictures.
function(morvane_precompiled_headers name links)
    if(links MATCHES "Morvane::app|morvane_shell_window|(control|dialog)_host")
        set(owner morvane_shell_window)
    elseif(links MATCHES "Morvane::(timeline|preview|capture|project|jobs)|morvane_(project_samples|jobs_support)")
        set(owner morvane_frames_headers)
    else()
        return()
    endif()
    target_precompile_headers(${name} REUSE_FROM ${owner})
    set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/mocs_compilation.cpp
        PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
endfunction()

# morvane_test(tst_x SOURCES ... LINKS ... [UI] [TIMEOUT seconds]): one QtTest executable run by ctest.
# Without UI it runs on the offscreen platform; with UI in a window of its own virtual screen.
function(morvane_test name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "UI" "TIMEOUT" "SOURCES;LINKS")
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} morvane_test_headers morvane_options)
    morvane_precompiled_headers(${name} "${ARG_LINKS}")
    target_compile_definitions(${name} PRIVATE
        MORVANE_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data" MORVANE_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    if(ARG_UI)
        add_test(NAME ${name} COMMAND ${PROJECT_SOURCE_DIR}/tests/ui/with-screen $<TARGET_FILE:${name}>)
        set(labels ui)
    else()
        add_test(NAME ${name} COMMAND ${name})
        set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
        set(labels unit)
    endif()
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 120)
    endif()
    set_tests_properties(${name} PROPERTIES LABELS ${labels} TIMEOUT ${ARG_TIMEOUT})
endfunction()
