// The least that a program of this kind can be: an empty view of the same size, ended after its first frame.

#include "app/FirstFrame.h"

#include <QGuiApplication>
#include <QQuickView>

int main(int argc, char *argv[])
{
    QGuiApplication app(argc, argv);
    QQuickView view;
    view.setColor(QColor(0x39, 0x39, 0x39));
    view.resize(1280, 760);
    firstframe::endAfter(view);
    view.show();
    return QGuiApplication::exec();
}
