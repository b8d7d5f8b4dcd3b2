#include "capture/source/DemoStage.h"

#include <cmath>
#include <numbers>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

namespace {

// Everything is drawn on a stage of this size and scaled to the picture.
constexpr QSizeF stageSize(1280, 720);
constexpr double boards = 600;
constexpr int crossing = 100;
constexpr int waving = 20;

struct Pose
{
    double x;
    /// 1 to the right, -1 to the left.
    double facing;
    /// The swing of the legs, in degrees; 0 while standing.
    double stride;
    double lift;
    /// How far the waving hand is up, 0 to 1.
    double wave;
    bool blinks;
};

Pose poseOf(int number)
{
    const int step =
        ((number % DemoStage::posesPerRound) + DemoStage::posesPerRound) % DemoStage::posesPerRound;
    const bool there = step < crossing + waving;
    const int along = there ? step : step - crossing - waving;
    const bool walks = along < crossing;
    const double way = walks ? double(along) / crossing : 1.0;
    const double phase = along * 2 * std::numbers::pi / 16;
    Pose pose;
    pose.x = there ? 240 + 800 * way : 1040 - 800 * way;
    pose.facing = there ? 1 : -1;
    pose.stride = walks ? 26 * std::sin(phase) : 0;
    pose.lift = walks ? 7 * std::abs(std::sin(phase)) : 0;
    pose.wave = walks ? 0 : 0.75 + 0.25 * std::sin(phase * 2);
    pose.blinks = number % 23 == 11 || number % 23 == 12;
    return pose;
}

void fit(QPainter &painter, const QSize &size, double zoom)
{
    const double scale =
        std::max(size.width() / stageSize.width(), size.height() / stageSize.height()) * zoom;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(size.width() / 2.0, size.height() / 2.0);
    painter.scale(scale, scale);
    painter.translate(-stageSize.width() / 2, -stageSize.height() / 2);
    painter.setPen(Qt::NoPen);
}

void drawSky(QPainter &painter)
{
    QLinearGradient sky(0, 0, 0, boards);
    sky.setColorAt(0, QColor(24, 34, 74));
    sky.setColorAt(0.6, QColor(92, 84, 140));
    sky.setColorAt(1, QColor(240, 160, 120));
    painter.fillRect(QRectF(-2000, -2000, 5280, 2000 + boards), sky);
    painter.setBrush(QColor(255, 250, 225));
    for (int i = 0; i < 40; ++i) {
        const double radius = 1.2 + (i * 7 % 5) * 0.4;
        painter.drawEllipse(QPointF(170 + i * 397 % 940, 70 + i * 211 % 230), radius, radius);
    }
    QRadialGradient glow(QPointF(930, 170), 130);
    glow.setColorAt(0, QColor(255, 240, 190, 150));
    glow.setColorAt(1, QColor(255, 240, 190, 0));
    painter.setBrush(glow);
    painter.drawEllipse(QPointF(930, 170), 130, 130);
    painter.setBrush(QColor(255, 244, 205));
    painter.drawEllipse(QPointF(930, 170), 52, 52);
}

void drawHills(QPainter &painter)
{
    painter.setBrush(QColor(86, 78, 128));
    painter.drawEllipse(QPointF(330, 640), 420, 210);
    painter.setBrush(QColor(70, 96, 110));
    painter.drawEllipse(QPointF(960, 660), 460, 220);
    painter.setBrush(QColor(58, 122, 96));
    painter.drawEllipse(QPointF(620, 690), 620, 170);
    // A cottage with a light in its window.
    painter.setBrush(QColor(196, 138, 92));
    painter.drawRect(QRectF(520, 478, 88, 66));
    painter.setBrush(QColor(140, 56, 60));
    painter.drawPolygon(QPolygonF{QPointF(506, 480), QPointF(564, 430), QPointF(622, 480)});
    painter.setBrush(QColor(255, 218, 120));
    painter.drawRect(QRectF(540, 496, 22, 22));
    painter.setBrush(QColor(96, 60, 48));
    painter.drawRect(QRectF(576, 504, 20, 40));
    for (const double x : {420.0, 700.0, 760.0, 860.0}) {
        painter.setBrush(QColor(84, 58, 46));
        painter.drawRect(QRectF(x - 5, 520, 10, 44));
        painter.setBrush(QColor(38, 92, 74));
        painter.drawPolygon(QPolygonF{QPointF(x - 34, 530), QPointF(x, 440), QPointF(x + 34, 530)});
    }
}

void drawFloor(QPainter &painter)
{
    QLinearGradient wood(0, boards, 0, 720);
    wood.setColorAt(0, QColor(150, 100, 62));
    wood.setColorAt(1, QColor(96, 60, 38));
    painter.fillRect(QRectF(-2000, boards, 5280, 2000), wood);
    painter.setPen(QPen(QColor(70, 42, 28), 2));
    for (int i = -12; i <= 12; ++i)
        painter.drawLine(QPointF(640 + i * 70, boards), QPointF(640 + i * 112, 740));
    painter.setPen(QPen(QColor(196, 146, 96), 3));
    painter.drawLine(QPointF(-2000, boards), QPointF(3280, boards));
    painter.setPen(Qt::NoPen);
}

void drawCurtains(QPainter &painter)
{
    for (int fold = 0; fold < 5; ++fold) {
        painter.setBrush(fold % 2 ? QColor(150, 28, 44) : QColor(120, 18, 34));
        const double hem = 740 - fold * 8;
        painter.drawRect(QRectF(fold * 32, -20, 34, hem));
        painter.drawRect(QRectF(1280 - fold * 32 - 34, -20, 34, hem));
    }
    painter.setBrush(QColor(136, 22, 38));
    for (int scallop = 0; scallop < 10; ++scallop)
        painter.drawEllipse(QRectF(scallop * 128 - 4, -62, 136, 118));
    painter.setBrush(QColor(226, 178, 84));
    for (int scallop = 0; scallop < 10; ++scallop)
        painter.drawEllipse(QPointF(scallop * 128 + 64, 60), 8, 8);
}

void drawLimb(QPainter &painter, const QPointF &joint, double degrees, double length, const QColor &colour)
{
    painter.save();
    painter.translate(joint);
    painter.rotate(degrees);
    painter.setPen(QPen(colour, 18, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(0, 0), QPointF(0, length));
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour.darker(130));
    painter.drawEllipse(QPointF(5, length + 6), 17, 11);
    painter.restore();
}

void drawHead(QPainter &painter, bool blinks)
{
    painter.setBrush(QColor(244, 206, 160));
    painter.drawEllipse(QPointF(4, -206), 54, 50);
    painter.setBrush(QColor(74, 112, 168));
    painter.drawChord(QRectF(-52, -262, 112, 96), 10 * 16, 160 * 16);
    painter.drawEllipse(QPointF(4, -264), 12, 12);
    painter.setBrush(QColor(232, 150, 130));
    painter.drawEllipse(QPointF(34, -190), 10, 7);
    for (const double x : {12.0, 40.0}) {
        if (blinks) {
            painter.setPen(QPen(QColor(60, 40, 36), 4, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(QPointF(x - 7, -208), QPointF(x + 7, -208));
            painter.setPen(Qt::NoPen);
            continue;
        }
        painter.setBrush(Qt::white);
        painter.drawEllipse(QPointF(x, -208), 11, 13);
        painter.setBrush(QColor(46, 34, 40));
        painter.drawEllipse(QPointF(x + 3, -206), 5.5, 6.5);
    }
    painter.setPen(QPen(QColor(130, 60, 56), 4, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(QRectF(8, -196, 34, 22), 200 * 16, 140 * 16);
    painter.setPen(Qt::NoPen);
}

void drawWalker(QPainter &painter, const Pose &pose)
{
    painter.setBrush(QColor(20, 10, 8, 90));
    painter.drawEllipse(QPointF(pose.x, boards + 62), 74 - pose.lift, 13);
    painter.save();
    painter.translate(pose.x, boards + 54 - pose.lift);
    painter.scale(pose.facing, 1);
    drawLimb(painter, {-2, -74}, pose.stride, 62, QColor(66, 70, 110));
    drawLimb(painter, {-26, -136}, -pose.stride, 56, QColor(190, 88, 60));
    drawLimb(painter, {4, -74}, -pose.stride, 62, QColor(84, 90, 140));
    painter.setBrush(QColor(222, 112, 72));
    painter.drawEllipse(QPointF(0, -112), 46, 58);
    painter.setBrush(QColor(250, 214, 120));
    for (const double y : {-128.0, -108.0, -88.0})
        painter.drawEllipse(QPointF(22, y), 5, 5);
    drawHead(painter, pose.blinks);
    painter.setBrush(QColor(96, 160, 110));
    painter.drawRoundedRect(QRectF(-40, -166, 84, 20), 10, 10);
    painter.save();
    painter.translate(-30, -158);
    painter.rotate(20 + pose.lift * 3);
    painter.drawRoundedRect(QRectF(-12, 0, 22, 62), 8, 8);
    painter.restore();
    drawLimb(painter, {26, -138}, pose.stride - 150 * pose.wave, 56, QColor(240, 140, 98));
    painter.restore();
}

} // namespace

void DemoStage::drawBackground(const QSize &size, double zoom)
{
    m_background = QImage(size, QImage::Format_RGB32);
    m_background.fill(QColor(20, 12, 16));
    m_backgroundZoom = zoom;
    QPainter painter(&m_background);
    fit(painter, size, zoom);
    drawSky(painter);
    drawHills(painter);
    drawFloor(painter);
    drawCurtains(painter);
}

QImage DemoStage::picture(const QSize &size, int pose, double zoom)
{
    if (m_background.size() != size || m_backgroundZoom != zoom)
        drawBackground(size, zoom);
    QImage picture = m_background.copy();
    QPainter painter(&picture);
    fit(painter, size, zoom);
    drawWalker(painter, poseOf(pose));
    return picture;
}
