#include "ui/screens/SampleFilm.h"

#include "project/ProjectTree.h"
#include "project/ProjectWriter.h"

#include <QDir>
#include <QImage>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int pictures = 18;
constexpr int heldPicture = 5;
constexpr int hiddenPicture = 11;
constexpr QSize size{1280, 720};

QString pictureName(int number, const QString &kind)
{
    return u"frame_%1_%2_260314150926.jpg"_s.arg(kind).arg(number, 6, 10, QChar(u'0'));
}

/// How far a hop of six pictures has come, from 0 to 1.
double hop(int number)
{
    return number % 6 / 5.0;
}

QImage picture(int number)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient wall(0, 0, 0, size.height());
    wall.setColorAt(0, QColor(u"#50647a"_s));
    wall.setColorAt(1, QColor(u"#1f2a35"_s));
    painter.fillRect(image.rect(), wall);
    painter.fillRect(0, 600, size.width(), 120, QColor(u"#6b4a2b"_s));

    const double t = hop(number);
    const QPointF centre(110 + number * 62, 530 - 1150 * t * (1 - t));
    const double squash = t == 0 || t == 1 ? 8 : -4;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 90));
    painter.drawEllipse(QPointF(centre.x(), 606), 70 - (600 - centre.y()) / 12, 12);
    QRadialGradient light(centre - QPointF(24, 28), 110);
    light.setColorAt(0, QColor(u"#ffc46b"_s));
    light.setColorAt(1, QColor(u"#c9581a"_s));
    painter.setBrush(light);
    painter.drawEllipse(centre, 70 + squash, 70 - squash);
    return image;
}

} // namespace

QString samplefilm::make(const QString &folder)
{
    const QString path = folder + u"/film.kzfx"_s;
    const ProjectTree tree = ProjectTree::of(path, {});
    bool ok = QDir().mkpath(tree.capFullDirPath) && QDir().mkpath(tree.capTumbDirPath);

    ProjectDocument document;
    for (int number = 0; number < pictures; ++number) {
        ProjectFrame frame;
        frame.capFull = pictureName(number, u"norm"_s);
        frame.capTumb = pictureName(number, u"mini"_s);
        const QImage image = picture(number);
        ok = ok && image.save(tree.capFullDirPath + frame.capFull, nullptr, 92)
             && image.scaledToWidth(180, Qt::SmoothTransformation).save(tree.capTumbDirPath + frame.capTumb);
        frame.hidden = number == hiddenPicture;
        // A hold of three marks its first row, those inside and its last.
        if (number == heldPicture) {
            for (frame.staticState = 0; frame.staticState < 3; ++frame.staticState)
                document.frames.append(frame);
        } else {
            frame.staticState = -1;
            document.frames.append(frame);
        }
    }
    document.frameSettings.emplace();
    document.frameSettings->frameWidth = size.width();
    document.frameSettings->frameHeight = size.height();
    document.frameSettings->cropAreaOn = true;
    document.frameSettings->timelineRangeStart = 0;
    document.frameSettings->timelineRangeEnd = rows - 1;
    document.render.emplace();
    document.render->fps = 12;
    return ok && ProjectWriter::save(path, document).ok ? path : QString();
}
