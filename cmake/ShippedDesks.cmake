# The desks of desks/ are compiled into the program, so that it can show a
# simulated desk wherever it is started.

# vantrel_shipped_desks(<room>): adds the desks' texts to the room's library.
function(vantrel_shipped_desks room)
  set(script ${PROJECT_SOURCE_DIR}/cmake/WriteShippedDesks.cmake)
  set(output ${PROJECT_BINARY_DIR}/generated/ShippedDeskTexts.cpp)
  file(GLOB desks CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/desks/*.json)
  add_custom_command(
    OUTPUT ${output}
    COMMAND ${CMAKE_COMMAND} -DOUTPUT=${output} -P ${script} -- ${desks}
    DEPENDS ${desks} ${script}
    COMMENT "Writing ShippedDeskTexts.cpp"
    VERBATIM)
  target_sources(vantrel_${room} PRIVATE ${output})
endfunction()
