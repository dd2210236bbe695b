# SPDX-License-Identifier: GPL-3.0-or-later
# Copies what lies beside the executable. What a person changed there, an example above all, is newer
# than what it was copied from and stays.
function(update from to)
    if(NOT EXISTS "${to}" OR "${from}" IS_NEWER_THAN "${to}")
        get_filename_component(folder "${to}" DIRECTORY)
        file(COPY "${from}" DESTINATION "${folder}")
    endif()
endfunction()

function(update_folder from to)
    file(GLOB_RECURSE names RELATIVE "${from}" "${from}/*")
    foreach(name IN LISTS names)
        update("${from}/${name}" "${to}/${name}")
    endforeach()
endfunction()

update("${DATA}/Keywords.txt" "${TO}/Keywords.txt")
update("${DATA}/QuickHelp.txt" "${TO}/QuickHelp.txt")
update("${TRANSLATION}" "${TO}/translations/qtbase_es.qm")
update_folder("${DATA}/Ayuda" "${TO}/Ayuda")
update_folder("${EXAMPLES}" "${TO}/examples")
