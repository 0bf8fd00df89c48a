# The hosts of the award managers are no part of the program. A packager names them here (host or host:port); whoever runs
# the program overrides them in the settings, section "Serveurs", under the same keys.
set(VORLAIN_CLES_SERVEURS Programme DOHF PC Tours DIFM Cluster)
foreach(code IN ITEMS DAF DCF DCPF DDFM DFCF DFF DIFI DIFM DLF DMF DOHF DPLF DVFF DYLF FFF PC TDC WLF)
    list(APPEND VORLAIN_CLES_SERVEURS "Reglement ${code}")
endforeach()

# vorlain_serveurs(<source>)
#
# Hands the hosts to one source file as the macro VORLAIN_SERVEURS: "key=host", separated by "|".
function(vorlain_serveurs source)
    set(paires "")
    foreach(cle IN LISTS VORLAIN_CLES_SERVEURS)
        string(TOUPPER "VORLAIN_SERVEUR_${cle}" variable)
        string(REPLACE " " "_" variable "${variable}")
        set(${variable} "" CACHE STRING "Host of \"${cle}\", empty for none")
        list(APPEND paires "${cle}=${${variable}}")
    endforeach()
    list(JOIN paires "|" texte)
    set_property(SOURCE ${source} APPEND PROPERTY COMPILE_DEFINITIONS "VORLAIN_SERVEURS=\"${texte}\"")
endfunction()
