# vorlain_entetes(<target> <coeur|ecrans|essais|essais_ecrans>)
#
# Gives a target the precompiled headers of that kind (src/entetes), compiled once for all targets of the kind. With
# VORLAIN_PCH=OFF every source stands on its own includes; so clang-tidy sees it.
function(vorlain_entetes cible genre)
    if(VORLAIN_PCH)
        target_precompile_headers(${cible} REUSE_FROM entetes_${genre})
    endif()
endfunction()

function(vorlain_construit_entetes genre)
    if(VORLAIN_PCH AND NOT TARGET entetes_${genre})
        set(source ${PROJECT_BINARY_DIR}/entetes_${genre}.cpp)
        file(CONFIGURE OUTPUT ${source} CONTENT "")
        add_library(entetes_${genre} OBJECT ${source})
        set_target_properties(entetes_${genre} PROPERTIES AUTOMOC OFF)
        target_link_libraries(entetes_${genre} PRIVATE vorlain_options ${ARGN})
        target_precompile_headers(entetes_${genre} PRIVATE ${PROJECT_SOURCE_DIR}/src/entetes/${genre}.h)
    endif()
endfunction()
