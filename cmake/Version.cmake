# The version stands here and nowhere else: the program, the packages, the manual pages and the metadata follow.
set(VORLAIN_VERSION "${PROJECT_VERSION}c")

# vorlain_version(<source>)
#
# Hands the version to one source file as the macro VORLAIN_VERSION: "1.2.5c".
function(vorlain_version source)
    set_property(SOURCE ${source} APPEND PROPERTY COMPILE_DEFINITIONS "VORLAIN_VERSION=\"${VORLAIN_VERSION}\"")
endfunction()
