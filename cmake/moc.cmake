# The meta-objects of a target's classes, header by header. The compiler of meta-objects makes the
# same of a header alone as with all that it includes, in a twentieth of the time; that of a header
# without such a class is empty. It is compiled in the batch of the header's source, which has read
# the same headers already. For when the target has all its sources.
function(kavela_moc target)
    get_target_property(root ${target} SOURCE_DIR)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.(cpp|h)$")
    foreach(source IN LISTS sources)
        cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${root} NORMALIZE)
        cmake_path(REPLACE_EXTENSION source LAST_ONLY h OUTPUT_VARIABLE header)
        if(NOT EXISTS ${header})
            continue()
        endif()
        cmake_path(RELATIVE_PATH header BASE_DIRECTORY ${PROJECT_SOURCE_DIR}/src OUTPUT_VARIABLE include)
        cmake_path(REPLACE_EXTENSION include LAST_ONLY moc.cpp OUTPUT_VARIABLE name)
        set(meta ${PROJECT_BINARY_DIR}/moc/${name})
        cmake_path(GET meta PARENT_PATH folder)
        file(MAKE_DIRECTORY ${folder})
        add_custom_command(OUTPUT ${meta}
            COMMAND Qt6::moc --no-notes -f ${include} ${header} -o ${meta}
            DEPENDS ${header}
            COMMENT "Meta-objects of ${include}"
            VERBATIM)
        target_sources(${target} PRIVATE ${meta})
        get_source_file_property(batch ${source} TARGET_DIRECTORY ${target} UNITY_GROUP)
        if(batch)
            set_source_files_properties(${meta} PROPERTIES UNITY_GROUP ${batch})
        endif()
    endforeach()
endfunction()
