# The window's translations: one .ts a language in this folder, compiled and put into the program as resources. The
# tools are looked for where the toolkit has them: they come in a small package of their own, the toolkit's own module
# for them in a larger one.
find_program(VELBRIN_LRELEASE NAMES lrelease HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} REQUIRED)
find_program(VELBRIN_LUPDATE NAMES lupdate HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} REQUIRED)
set(translations_folder ${CMAKE_CURRENT_LIST_DIR})

# What is translated: every room that the window takes its texts from. What is printed stays English, so that scripts
# can read it: the output of the command line and of the simulator, and of the window's program its options and its tour.
set(patterns "")
foreach(room analysis buslib desk model report session ui)
    list(APPEND patterns ${CMAKE_SOURCE_DIR}/${room}/*.cpp ${CMAKE_SOURCE_DIR}/${room}/*.h ${CMAKE_SOURCE_DIR}/${room}/*.ui)
endforeach()
file(GLOB_RECURSE translated CONFIGURE_DEPENDS ${patterns})
list(FILTER translated EXCLUDE REGEX "/(main|programoptions|tour)\\.[a-z]+$")
# Where it finds the headers that say which context a text has.
foreach(file ${translated})
    get_filename_component(folder ${file} DIRECTORY)
    list(APPEND folders -I${folder})
endforeach()
list(REMOVE_DUPLICATES folders)
list(JOIN translated "\n" lines)
list(JOIN folders "\n" folders)
set(VELBRIN_TRANSLATED ${CMAKE_BINARY_DIR}/translations/sources.lst)
file(CONFIGURE OUTPUT ${VELBRIN_TRANSLATED} CONTENT "${folders}\n${lines}\n")

# velbrin_add_translations(<target>): the resources "/translations/velbrin_<language>.qm".
function(velbrin_add_translations target)
    file(GLOB sources CONFIGURE_DEPENDS ${translations_folder}/*.ts)
    set(compiled "")
    foreach(source ${sources})
        get_filename_component(name ${source} NAME_WE)
        set(made ${CMAKE_BINARY_DIR}/translations/${name}.qm)
        add_custom_command(OUTPUT ${made}
            COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/translations
            COMMAND ${VELBRIN_LRELEASE} -silent ${source} -qm ${made}
            DEPENDS ${source} COMMENT "Translation ${name}" VERBATIM)
        list(APPEND compiled ${made})
    endforeach()
    qt_add_resources(${target} translations PREFIX /translations BASE ${CMAKE_BINARY_DIR}/translations
                     FILES ${compiled})
endfunction()

# cmake --build BUILD --target update_translations: takes new texts of the sources into every .ts, and drops old ones.
file(GLOB sources CONFIGURE_DEPENDS ${translations_folder}/*.ts)
add_custom_target(update_translations
    COMMAND ${VELBRIN_LUPDATE} -silent -locations none -no-obsolete @${VELBRIN_TRANSLATED} -ts ${sources}
    COMMENT "New texts into ${sources}" VERBATIM)
