// What the figures depend on and a shell cannot ask for: the libraries and what draws, a line each.

#include <cstdio>
#include <opencv2/core/version.hpp>
#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

extern "C" {
#include <libavutil/avutil.h>
}

int main(int argc, char **argv)
{
    const QGuiApplication app(argc, argv);
    std::printf("Qt\t%s\n", qVersion());
    std::printf("OpenCV\t%s\n", CV_VERSION);
    std::printf("FFmpeg\t%s\n", av_version_info());
    QOffscreenSurface surface;
    surface.create();
    QOpenGLContext context;
    if (!context.create() || !context.makeCurrent(&surface)) {
        std::printf("OpenGL\tnone\n");
        return 0;
    }
    const auto *renderer = reinterpret_cast<const char *>(context.functions()->glGetString(GL_RENDERER));
    std::printf("OpenGL\t%s\n", renderer != nullptr ? renderer : "unknown");
    return 0;
}
