# morvane_scene(target FILES ...): the scene's QML and script files, flat in qrc:/ and compiled ahead of time.
#
# Qt's own module function cannot put files of a library at the root of the resources, so its two steps stand
# here: each file goes through the QML compiler, and a loader makes the results known to the engine. The target
# is an object library, because both register themselves when the program starts.
function(morvane_scene target)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "FILES")
    add_library(${target} OBJECT)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/compiled)
    file(MAKE_DIRECTORY ${folder})

    set(map ${CMAKE_CURRENT_BINARY_DIR}/.rcc/${target}_files.qrc)

    foreach(file IN LISTS ARG_FILES)
        cmake_path(GET file FILENAME name)
        set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS ${name})
        if(NOT name STREQUAL "qmldir")
            string(REPLACE "." "_" unit ${name})
            add_custom_command(OUTPUT ${folder}/${unit}.cpp
                COMMAND Qt6::qmlcachegen --bare --only-bytecode --resource ${map}
                    --resource-path /${name} -o ${folder}/${unit}.cpp ${file}
                DEPENDS ${file} VERBATIM)
            list(APPEND units ${folder}/${unit}.cpp)
            string(APPEND paths "/${name}\n")
        endif()
    endforeach()

    file(GENERATE OUTPUT ${folder}/paths.txt CONTENT "${paths}")
    add_custom_command(OUTPUT ${folder}/qmlcache_loader.cpp
        COMMAND Qt6::qmlcachegen --resource-name qmlcache_${target} -o ${folder}/qmlcache_loader.cpp @${folder}/paths.txt
        DEPENDS ${folder}/paths.txt VERBATIM)

    set_source_files_properties(${units} ${folder}/qmlcache_loader.cpp PROPERTIES SKIP_AUTOGEN ON)
    target_sources(${target} PRIVATE ${units} ${folder}/qmlcache_loader.cpp)
    target_link_libraries(${target} PRIVATE Qt6::Qml)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 30)
    qt_add_resources(${target} ${target}_files PREFIX / FILES ${ARG_FILES})
endfunction()
