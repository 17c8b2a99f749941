# Run by the build, with SOURCE_DIR and OUTPUT_DIR set: lays out the folder that the authoring mode
# edits, a mirror of the resource tree. What is there already is a writer's work and stays.
foreach(folder qml/Tutorial translations)
    file(GLOB files RELATIVE ${SOURCE_DIR} ${SOURCE_DIR}/${folder}/*.js ${SOURCE_DIR}/${folder}/*.ts)
    list(FILTER files EXCLUDE REGEX "/interface_")
    foreach(file ${files})
        if(NOT EXISTS ${OUTPUT_DIR}/${file})
            get_filename_component(output ${OUTPUT_DIR}/${file} DIRECTORY)
            file(COPY ${SOURCE_DIR}/${file} DESTINATION ${output})
        endif()
    endforeach()
endforeach()
