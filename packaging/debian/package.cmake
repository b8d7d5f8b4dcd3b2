# The package for Debian that `cpack -G DEB` makes, for the release that it runs on. What the program and its modules
# are linked to is found by dpkg-shlibdeps; here stands what is loaded by name while it runs.

cmake_host_system_information(RESULT system QUERY DISTRIB_INFO)

set(CPACK_PACKAGE_NAME morvane-capture)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "stop-motion animation with a camera or webcam")
set(CPACK_PACKAGE_DESCRIPTION
"Shoots an animation frame by frame: connect a camera, pose the puppet and
capture, while the screen blends the live picture with the frames before it.

The frames stand on a timeline, where they are ordered, held, mirrored,
hidden and played back from memory, and are rendered to a movie, in the
window or without a screen. A demo webcam stands in where there is none.")
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_OUTPUT_FILE_PREFIX ${PROJECT_BINARY_DIR}/packages)

# The release stands behind the version, so that an upgrade of the system takes the package that was built for it.
set(CPACK_DEBIAN_PACKAGE_VERSION ${PROJECT_VERSION}+${system_ID}${system_VERSION_ID})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Morvane <capture@morvane.example>")
set(CPACK_DEBIAN_PACKAGE_SECTION video)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Packages of QML modules do not depend on each other in every release; the plug-in for SVG pictures was part of its
# library once.
set(loaded
    qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript
    qml6-module-qtquick qml6-module-qtquick-window
    qt6-qpa-plugins qt6-image-formats-plugins "qt6-svg-plugins | libqt6svg6 (<< 6.7.2-5~)" qt6-translations-l10n
    fonts-dejavu-core hicolor-icon-theme)
list(JOIN loaded ", " CPACK_DEBIAN_PACKAGE_DEPENDS)
# Drawing without a graphics card; opening folders and links; a double click on a project.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libgl1-mesa-dri, xdg-utils, desktop-file-utils, shared-mime-info")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(documents ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_PACKAGE_NAME})
configure_file(debian/changelog.in changelog @ONLY)
morvane_install_packed(${CMAKE_CURRENT_BINARY_DIR}/changelog changelog ${documents})
install(FILES debian/copyright DESTINATION ${documents})

include(CPack)
