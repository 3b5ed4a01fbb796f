# Files that come with the program are compiled into it, so that it has them
# wherever it is started.

# vantrel_shipped_texts(<room> <folder>): adds the texts of <folder>/*.json to the
# room's library, behind the function shipped<Folder>Texts() of the room's header
# Shipped<Folder>Texts.h.
function(vantrel_shipped_texts room folder)
  string(SUBSTRING ${folder} 0 1 initial)
  string(TOUPPER ${initial} initial)
  string(SUBSTRING ${folder} 1 -1 rest)
  set(name Shipped${initial}${rest}Texts)
  get_target_property(room_folder vantrel_${room} VANTREL_FOLDER)
  set(script ${PROJECT_SOURCE_DIR}/cmake/WriteShippedTexts.cmake)
  set(output ${PROJECT_BINARY_DIR}/generated/${name}.cpp)
  file(GLOB files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${folder}/*.json)
  add_custom_command(
    OUTPUT ${output}
    COMMAND ${CMAKE_COMMAND} -DOUTPUT=${output} -DNAME=${name} -DROOM=${room} -DROOM_FOLDER=${room_folder}
            -DFOLDER=${folder} -P ${script} -- ${files}
    DEPENDS ${files} ${script}
    COMMENT "Writing ${name}.cpp"
    VERBATIM)
  target_sources(vantrel_${room} PRIVATE ${output})
endfunction()
