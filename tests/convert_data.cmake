# The shipped conversion table, checked against unit definitions of the checker's own.
find_package(Python3 COMPONENTS Interpreter)
if(Python3_Interpreter_FOUND)
  set(VELMORA_CONVERT_TABLE ${PROJECT_SOURCE_DIR}/data/VLSupport/convert.txt)
  add_test(NAME ConvertData.FactorsAgreeWithDefinitions
           COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/check_convert.py --file ${VELMORA_CONVERT_TABLE})

  # A copy with one wrong factor, kept consistent with its reverse row so that only the
  # comparison with the definitions can see it. Regenerated whenever the table changes.
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${VELMORA_CONVERT_TABLE})
  file(READ ${VELMORA_CONVERT_TABLE} convert_table)
  string(REPLACE "\"*0.3048\">ft->m<" "\"*0.3049\">ft->m<" convert_broken "${convert_table}")
  string(REPLACE "\"/0.3048\">m->ft<" "\"/0.3049\">m->ft<" convert_broken "${convert_broken}")
  file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/convert_broken.txt "${convert_broken}")
  add_test(NAME ConvertData.CheckerRejectsWrongFactor
           COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/check_convert.py
                   --file ${CMAKE_CURRENT_BINARY_DIR}/convert_broken.txt)
  set_tests_properties(ConvertData.CheckerRejectsWrongFactor PROPERTIES
    PASS_REGULAR_EXPRESSION "'ft->m': factor 0.3049, by definition 0.3048")
else()
  message(STATUS "No Python 3 interpreter: the conversion table check is left out")
endif()
