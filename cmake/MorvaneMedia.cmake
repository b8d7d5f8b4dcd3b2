# The media libraries: OpenCV by module (its single packages bring no configuration of their own), FFmpeg, WebP, udev.

find_path(OPENCV_INCLUDE_DIR opencv2/core.hpp PATH_SUFFIXES opencv4 REQUIRED)
foreach(module core imgproc photo videoio)
    find_library(OPENCV_${module}_LIBRARY opencv_${module} REQUIRED)
    add_library(OpenCV::${module} UNKNOWN IMPORTED)
    set_target_properties(OpenCV::${module} PROPERTIES
        IMPORTED_LOCATION ${OPENCV_${module}_LIBRARY} INTERFACE_INCLUDE_DIRECTORIES ${OPENCV_INCLUDE_DIR})
endforeach()

find_package(PkgConfig REQUIRED)
pkg_check_modules(FFMPEG REQUIRED IMPORTED_TARGET
    libavformat libavfilter libavcodec libswscale libswresample libavutil)
pkg_check_modules(WEBP REQUIRED IMPORTED_TARGET libwebpmux libwebp)
pkg_check_modules(UDEV REQUIRED IMPORTED_TARGET libudev)
