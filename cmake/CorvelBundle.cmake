# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0

# corvel_bundle_resources(TARGET CONTENTS FILE...): puts the plug-in's information list, forms, strings and help book,
# and the files given, around the module or program TARGET that is built into CONTENTS/Linux.
function(corvel_bundle_resources target contents)
    set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${target}_resources.stamp)
    file(GLOB_RECURSE helpPages CONFIGURE_DEPENDS ${CORVEL_HELP_DIR}/*)
    add_custom_command(OUTPUT ${stamp}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${contents}/Resources
        COMMAND ${CMAKE_COMMAND} -E copy_if_different ${CORVEL_INFO_JSON} ${contents}
        COMMAND ${CMAKE_COMMAND} -E copy_if_different ${CORVEL_FORMS} ${CORVEL_STRINGS} ${ARGN} ${contents}/Resources
        COMMAND ${CMAKE_COMMAND} -E copy_directory ${CORVEL_HELP_DIR} ${contents}/Resources/Corvel9031Help
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${CORVEL_INFO_JSON} ${CORVEL_FORMS} ${CORVEL_STRINGS} ${helpPages} ${ARGN} corvel_strings
        COMMENT "Putting the resources beside ${target}" VERBATIM)
    add_custom_target(${target}_resources DEPENDS ${stamp})
    add_dependencies(${target} ${target}_resources)
endfunction()

# corvel_install_bundle(TARGET NAME): installs the module TARGET as the plug-in bundle NAME, with the same resources.
function(corvel_install_bundle target name)
    set(contents ${CORVEL_PDE_INSTALL_DIR}/${name}/Contents)
    # The program has loaded the kit before any plug-in.
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "" BUILD_WITH_INSTALL_RPATH ON)
    install(TARGETS ${target} LIBRARY DESTINATION ${contents}/Linux COMPONENT program)
    install(FILES ${CORVEL_INFO_JSON} DESTINATION ${contents} COMPONENT program)
    install(FILES ${CORVEL_FORMS} ${CORVEL_STRINGS} DESTINATION ${contents}/Resources COMPONENT program)
    install(DIRECTORY ${CORVEL_HELP_DIR} DESTINATION ${contents}/Resources COMPONENT program)
endfunction()
