# Makes one help file: chmcmd writes it beside its project, and tells what it does only when it fails.
cmake_path(GET PROJET PARENT_PATH dossier)
cmake_path(GET SORTIE FILENAME nom)
execute_process(COMMAND ${CHMCMD} --no-html-scan ${PROJET} WORKING_DIRECTORY ${dossier}
  OUTPUT_VARIABLE dit ERROR_VARIABLE dit RESULT_VARIABLE etat)
if(NOT etat EQUAL 0 OR NOT EXISTS ${dossier}/${nom})
  message(FATAL_ERROR "chmcmd: ${etat}\n${dit}")
endif()
file(COPY_FILE ${dossier}/${nom} ${SORTIE})
