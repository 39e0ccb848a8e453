# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0

# Debian packages: cpack -G DEB. One for the program with its plug-in, one that has other programs print with it, one for
# the library that other plug-ins use as well, one for those who build them.
set(library libpdekit${PROJECT_VERSION_MAJOR})
set(packages corvel-print corvel-print-portal ${library} libpdekit-dev)

# What only a Debian package has.
corvel_compress(${CMAKE_CURRENT_SOURCE_DIR}/debian/changelog ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz)
add_custom_target(corvel_changelog ALL DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz)
foreach(component IN ITEMS program portal library development)
    list(POP_FRONT packages package)
    install(FILES debian/copyright ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${component}_debian EXCLUDE_FROM_ALL)
    string(TOUPPER ${component} upper)
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package})
    set(CPACK_COMPONENT_${upper}_GROUP ${component})
    set(CPACK_COMPONENT_${upper}_DEBIAN_GROUP ${component})
    list(APPEND CPACK_COMPONENTS_ALL ${component} ${component}_debian)
endforeach()
install(FILES completions/_corvel-print DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions
    COMPONENT program_debian EXCLUDE_FROM_ALL)

# The packages' maintainer, by default from the environment variables that Debian's tools read.
set(CORVEL_PACKAGE_CONTACT "" CACHE STRING "Maintainer of the packages: Name <address>")
set(CPACK_PACKAGE_CONTACT "${CORVEL_PACKAGE_CONTACT}")
if(NOT CPACK_PACKAGE_CONTACT AND DEFINED ENV{DEBFULLNAME} AND DEFINED ENV{DEBEMAIL})
    set(CPACK_PACKAGE_CONTACT "$ENV{DEBFULLNAME} <$ENV{DEBEMAIL}>")
elseif(NOT CPACK_PACKAGE_CONTACT)
    set(CPACK_PACKAGE_CONTACT "Corvel print dialog authors <authors@corvel.example.org>")
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME corvel-print)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # would be the first line of each package's own description
set(CPACK_PACKAGE_VENDOR "Corvel print dialog authors")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE corvel-print)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# dpkg-shlibdeps does not know a library that is packaged in the same run. It is given the library's folder, and the
# package is named here.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS "${library} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS "libheif1, qt6-image-formats-plugins, qt6-translations-l10n, qt6-wayland")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SUGGESTS "avahi-daemon, colord, cups")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PROGRAM_DESCRIPTION "photo-print dialog for dye-sublimation printers
Prints photos from a window that shows each one on its page, or at once from
the command line, and gives the settings of a dye-sublimation photo printer:
color adjustments, sharpness, print quality and surface finish.

It prints through CUPS, or without any printer into a PDF file with a job
ticket beside it.")

# A package of its own: before xdg-desktop-portal 1.17, what is installed decides for all users.
set(CPACK_DEBIAN_PORTAL_PACKAGE_DEPENDS "corvel-print (= ${PROJECT_VERSION}), ${library} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_PORTAL_PACKAGE_RECOMMENDS "xdg-desktop-portal")
set(CPACK_DEBIAN_PORTAL_PACKAGE_SUGGESTS "ghostscript")
set(CPACK_DEBIAN_PORTAL_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PORTAL_DESCRIPTION "print portal that shows a photo-print dialog
Programs that print through xdg-desktop-portal, such as those from Flatpak,
show the print dialog corvel-print in place of the desktop's own.

With xdg-desktop-portal before 1.17 that holds for all users; from then on
each user chooses it with corvel-print --use-for-all-programs.")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY =)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_SOURCE_DIR}/debian/triggers)
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "kit that a photo-print dialog shares with its plug-ins
The protocol between the print dialog corvel-print and the plug-ins that give
it the panels of a printer, and what such a panel needs of a desktop.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${library} (= ${PROJECT_VERSION}), qt6-base-dev")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "kit for plug-ins of a photo-print dialog - development files
What is needed to build a plug-in that gives the print dialog corvel-print the
panels of a printer: the headers and a CMake package.")

include(CPack)
