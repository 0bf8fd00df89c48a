# Installs the build into a folder of its own and compares the files with the list of those that a package brings.
set(racine ${CONSTRUCTION}/essai_installation)
file(REMOVE_RECURSE ${racine})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${CONSTRUCTION} --prefix ${racine}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(GLOB_RECURSE fichiers RELATIVE ${racine} ${racine}/*)
# The pictures of the manual come and go with it.
list(FILTER fichiers EXCLUDE REGEX "^share/doc/vorlain/images/")
list(SORT fichiers)
list(JOIN fichiers "\n" arbre)
file(REMOVE_RECURSE ${racine})
if(DEFINED ENV{VORLAIN_RENOUVELLE})
    file(WRITE ${ATTENDU} "${arbre}\n")
endif()
file(READ ${ATTENDU} attendu)
if(NOT "${arbre}\n" STREQUAL attendu)
    message(FATAL_ERROR "Installed:\n${arbre}\n\nExpected:\n${attendu}")
endif()
