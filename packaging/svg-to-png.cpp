// svg-to-png picture.svg picture.png width height: draws an SVG picture as the program itself would, as RGBA.

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    QTextStream errors(stderr);
    if (arguments.size() != 5) {
        errors << "usage: svg-to-png picture.svg picture.png width height\n";
        return 2;
    }
    QSvgRenderer renderer(arguments[1]);
    QImage picture(arguments[3].toInt(), arguments[4].toInt(), QImage::Format_ARGB32);
    if (!renderer.isValid() || picture.isNull()) {
        errors << "cannot draw " << arguments[1] << "\n";
        return 1;
    }
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    renderer.render(&painter);
    painter.end();
    if (!picture.save(arguments[2], "PNG")) {
        errors << "cannot write " << arguments[2] << "\n";
        return 1;
    }
    return 0;
}
