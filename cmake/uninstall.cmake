# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0

# cmake -DMANIFEST=FILE -P uninstall.cmake: removes the files that the last installation has listed, and the folders
# made for them where those are empty then. DESTDIR must be the same as in that installation.
if(NOT EXISTS ${MANIFEST})
    message(FATAL_ERROR "There is nothing to uninstall: ${MANIFEST} is missing. It is written by cmake --install.")
endif()
file(STRINGS ${MANIFEST} files ENCODING UTF-8)
set(folders)
foreach(file IN LISTS files)
    set(path $ENV{DESTDIR}${file})
    if(EXISTS ${path} OR IS_SYMLINK ${path})
        message(STATUS "Removing ${path}")
        file(REMOVE ${path})
    endif()
    # Only folders with our name were made for us alone.
    cmake_path(GET file PARENT_PATH folder)
    while(folder MATCHES "/(corvel-print|pdekit)(/|$)")
        list(APPEND folders ${folder})
        cmake_path(GET folder PARENT_PATH folder)
    endwhile()
endforeach()
list(REMOVE_DUPLICATES folders)
list(SORT folders ORDER DESCENDING)
foreach(folder IN LISTS folders)
    set(path $ENV{DESTDIR}${folder})
    file(GLOB content ${path}/* ${path}/.*)
    list(FILTER content EXCLUDE REGEX "/\\.\\.?$")
    if(IS_DIRECTORY ${path} AND NOT content)
        file(REMOVE_RECURSE ${path})
    endif()
endforeach()
file(REMOVE ${MANIFEST})
