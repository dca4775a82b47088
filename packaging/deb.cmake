# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
# What a Debian package has besides; the preset deb and the script packaging/deb use it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "${QUILLETS_PACKAGER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "sticky notes for the desktop")
set(CPACK_PACKAGE_DESCRIPTION
"Quillets keeps notes as small windows on the desktop, each in its own
colours and font, or as tabs of one window. Every note comes back where it
was left. Notes can call at a date and time, be rolled up, kept above other
windows, locked and printed.")
set(CPACK_STRIP_FILES ON)
set(CPACK_SET_DESTDIR ON) # /etc is outside the prefix.
set(CPACK_DEBIAN_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "fonts-dejavu-core, fonts-liberation, fonts-noto-cjk, fonts-noto-color-emoji, \
libsecret-1-0, xdg-utils, libglib2.0-bin")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/conffiles "/etc/ufw/applications.d/quillets\n")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_BINARY_DIR}/conffiles)

string(TIMESTAMP QUILLETS_PACKAGE_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(debian/changelog.in debian/changelog @ONLY)
set(doc share/doc/quillets)
install(FILES debian/copyright DESTINATION ${doc})
install(FILES ${PROJECT_SOURCE_DIR}/CHANGELOG.md DESTINATION ${doc})
function(install_zipped source folder)
    get_filename_component(name ${source} NAME)
    execute_process(COMMAND gzip -9nc ${source} OUTPUT_FILE ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz COMMAND_ERROR_IS_FATAL ANY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz DESTINATION ${folder})
endfunction()
install_zipped(${CMAKE_CURRENT_BINARY_DIR}/debian/changelog ${doc})
foreach(manual IN LISTS manuals)
    install_zipped(${manual} share/man/man1)
endforeach()
include(CPack)
