// What the shaders put on the screen, against the painter: every blend type and gray, over pictures whose
// alpha runs through all values in both layers.

#include "app/TypeRegistry.h"
#include "preview/QChromaKey.h"
#include "shared/Zum.h"

#include <memory>
#include <QPainter>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickImageProvider>
#include <QQuickItem>
#include <QQuickItemGrabResult>
#include <QQuickView>
#include <QRandomGenerator>
#include <QtTest>

namespace {

constexpr int side = 128;
constexpr int tolerance = 2;

/// Ramps in colour and alpha, with noise in the half below: steep functions meet all values, flat ones
/// neighbours.
QImage layerPicture(bool turned)
{
    QRandomGenerator noise(turned ? 7 : 11);
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const int along = turned ? y : x;
            const int across = turned ? x : y;
            QRgb color = y < side / 2 ? qRgba(along * 2, 255 - along * 2, across * 2, qMin(255, across * 4))
                                      : noise.generate();
            if (x % 8 == 0)
                color |= 0xff000000U;
            image.setPixel(x, y, qPremultiply(color));
        }
    }
    return image;
}

class LayerPictures : public QQuickImageProvider
{
public:
    LayerPictures() : QQuickImageProvider(Image)
    {
    }
    QImage requestImage(const QString &id, QSize *size, const QSize &) override
    {
        const QImage image = layerPicture(id == "upper");
        *size = image.size();
        return image;
    }
};

QImage painted(int blend, qreal sourceOpacity, qreal backdropOpacity)
{
    QImage canvas(side, side, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    painter.setOpacity(backdropOpacity);
    painter.drawImage(0, 0, layerPicture(false));
    painter.setOpacity(sourceOpacity);
    painter.setCompositionMode(QChromaKey::compositionModeOf(blend));
    painter.drawImage(0, 0, layerPicture(true));
    return canvas;
}

/// A layer's picture by the gray arithmetic, drawn over the other.
QImage paintedGray()
{
    QImage gray = layerPicture(true).convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < side; ++y) {
        auto *line = reinterpret_cast<QRgb *>(gray.scanLine(y));
        for (int x = 0; x < side; ++x) {
            const int value = (qGreen(line[x]) * 16 + qBlue(line[x]) * 11 + qRed(line[x]) * 5) >> 5;
            line[x] = qRgba(value, value, value, qAlpha(line[x]));
        }
    }
    QImage canvas = layerPicture(false);
    QPainter painter(&canvas);
    painter.drawImage(0, 0, gray);
    return canvas;
}

QByteArray textOf(const QImage &image, int x, int y)
{
    return QByteArray::number(reinterpret_cast<const QRgb *>(image.constScanLine(y))[x], 16);
}

/// Empty, or where and how far two pictures differ most.
QByteArray difference(const QImage &seen, const QImage &wanted)
{
    if (seen.size() != wanted.size())
        return "Sizes differ";
    int worst = 0;
    QByteArray text;
    for (int y = 0; y < wanted.height(); ++y) {
        const uchar *a = seen.constScanLine(y);
        const uchar *b = wanted.constScanLine(y);
        for (int i = 0; i < wanted.width() * 4; ++i) {
            const int off = qAbs(a[i] - b[i]);
            if (off <= worst)
                continue;
            worst = off;
            const int x = i / 4;
            text = "off by " + QByteArray::number(off) + " at " + QByteArray::number(x) + ", "
                   + QByteArray::number(y) + ": " + textOf(seen, x, y) + " for " + textOf(wanted, x, y)
                   + " of " + textOf(layerPicture(true), x, y) + " over " + textOf(layerPicture(false), x, y);
        }
    }
    return worst > tolerance ? text : QByteArray();
}

} // namespace

class TestBlendEffect : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void blendTypeHasItsCompositionMode_data();
    void blendTypeHasItsCompositionMode();
    void grayscaleComesBeforeBlending();
    void blendTypeLooksAsPainted_data();
    void blendTypeLooksAsPainted();
    void opacitiesOfBothLayersCount_data();
    void opacitiesOfBothLayersCount();
    void softLightLooksLikeLighten();
    void grayscaleLooksAsComputed();
    void grayscaleLeavesBlendTypeOut();
    void nothingToBlendMeansNoShader_data();
    void nothingToBlendMeansNoShader();
    void hiddenLayerEndsTheEffect();
    void effectIsABackdropForTheNext();
    void zoomedViewGetsSharperLayers();

private:
    QImage seen();
    void set(const char *name, const QVariant &value);
    QQuickItem *item(const char *name) const
    {
        return m_view->rootObject()->findChild<QQuickItem *>(QString::fromLatin1(name));
    }

    std::unique_ptr<QQuickView> m_view;
    QStringList m_warnings;
};

void TestBlendEffect::initTestCase()
{
    typeregistry::registerTypes();
}

void TestBlendEffect::init()
{
    m_view = std::make_unique<QQuickView>();
    connect(m_view->engine(), &QQmlEngine::warnings, this, [this](const QList<QQmlError> &warnings) {
        for (const QQmlError &warning : warnings)
            m_warnings.append(warning.toString());
    });
    m_view->engine()->addImageProvider(QStringLiteral("layers"), new LayerPictures);
    auto *component = new QQmlComponent(m_view->engine(), m_view.get());
    component->setData(
        "import QtQuick\n"
        "Item { width: 128; height: 128\n"
        "  Item { objectName: 'all'; anchors.fill: parent\n"
        "    Item { objectName: 'below'; anchors.fill: parent\n"
        "      Image { source: 'image://layers/lower' } }\n"
        "    Item { objectName: 'layer'; anchors.fill: parent\n"
        "      Image { source: 'image://layers/upper' } }\n"
        "    BlendEffect { objectName: 'effect'; anchors.fill: parent\n"
        "      source: parent.children[1]; backdrop: parent.children[0] }\n"
        "    Item { objectName: 'third'; anchors.fill: parent; visible: false\n"
        "      Image { source: 'image://layers/upper' } }\n"
        "    BlendEffect { objectName: 'second'; anchors.fill: parent\n"
        "      source: parent.children[3]; backdrop: parent.children[2] }\n"
        "  }\n"
        "}\n",
        QUrl("qrc:/TestBlendEffect.qml"));
    QVERIFY2(component->isReady(), qPrintable(component->errorString()));
    QObject *root = component->create();
    m_view->setContent(component->url(), component, root);
    m_view->resize(side, side);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
}

void TestBlendEffect::cleanup()
{
    m_view.reset();
    QCOMPARE(m_warnings, QStringList());
}

void TestBlendEffect::set(const char *name, const QVariant &value)
{
    QVERIFY(item("effect")->setProperty(name, value));
}

QImage TestBlendEffect::seen()
{
    const QSharedPointer<QQuickItemGrabResult> grab = item("all")->grabToImage();
    QSignalSpy ready(grab.data(), &QQuickItemGrabResult::ready);
    return ready.wait() ? grab->image().convertToFormat(QImage::Format_ARGB32_Premultiplied) : QImage();
}

void TestBlendEffect::blendTypeHasItsCompositionMode_data()
{
    QTest::addColumn<int>("blend");
    QTest::addColumn<int>("mode");
    const auto row = [](const char *name, int blend, QPainter::CompositionMode mode) {
        QTest::newRow(name) << blend << int(mode);
    };
    row("NoBlend", Zum::NoBlend, QPainter::CompositionMode_SourceOver);
    row("BlendDarken", Zum::BlendDarken, QPainter::CompositionMode_Darken);
    row("BlendMultiply", Zum::BlendMultiply, QPainter::CompositionMode_Multiply);
    row("BlendColorBurn", Zum::BlendColorBurn, QPainter::CompositionMode_ColorBurn);
    row("BlendLighten", Zum::BlendLighten, QPainter::CompositionMode_Lighten);
    row("BlendScreen", Zum::BlendScreen, QPainter::CompositionMode_Screen);
    row("BlendColorDodge", Zum::BlendColorDodge, QPainter::CompositionMode_ColorDodge);
    row("BlendOverlay", Zum::BlendOverlay, QPainter::CompositionMode_Overlay);
    row("BlendSoftLight", Zum::BlendSoftLight, QPainter::CompositionMode_Lighten);
    row("BlendHardLight", Zum::BlendHardLight, QPainter::CompositionMode_HardLight);
    row("BlendDifference", Zum::BlendDifference, QPainter::CompositionMode_Difference);
    row("BlendExclusion", Zum::BlendExclusion, QPainter::CompositionMode_Exclusion);
    row("BlendPlus", Zum::BlendPlus, QPainter::CompositionMode_Plus);
    row("BlendXor", Zum::BlendXor, QPainter::CompositionMode_SourceOver);
    row("unknown", 77, QPainter::CompositionMode_SourceOver);
}

void TestBlendEffect::blendTypeHasItsCompositionMode()
{
    QFETCH(int, blend);
    QFETCH(int, mode);
    QChromaKey effect;
    effect.setBlend(blend);
    QCOMPARE(effect.compositionMode(), mode);
    QCOMPARE(effect.blending(), mode != QPainter::CompositionMode_SourceOver);
    QCOMPARE(effect.active(), effect.blending());
}

void TestBlendEffect::grayscaleComesBeforeBlending()
{
    QChromaKey effect;
    effect.setBlend(Zum::BlendMultiply);
    effect.setGrayscale(true);
    QVERIFY(effect.active());
    QVERIFY(!effect.blending());
    effect.setGrayscale(false);
    QVERIFY(effect.blending());
}

void TestBlendEffect::blendTypeLooksAsPainted_data()
{
    QTest::addColumn<int>("blend");
    const QMetaEnum types = QMetaEnum::fromType<Zum::BlendType>();
    for (int i = 0; i < types.keyCount(); ++i)
        QTest::newRow(types.key(i)) << types.value(i);
}

void TestBlendEffect::blendTypeLooksAsPainted()
{
    QFETCH(int, blend);
    set("blend", blend);
    QCOMPARE(difference(seen(), painted(blend, 1, 1)), QByteArray());
}

void TestBlendEffect::opacitiesOfBothLayersCount_data()
{
    blendTypeLooksAsPainted_data();
}

void TestBlendEffect::opacitiesOfBothLayersCount()
{
    QFETCH(int, blend);
    set("blend", blend);
    // Dodge and burn make steps of one level in a faded backdrop, which the painter rounds otherwise, very
    // large.
    const bool steep = blend == Zum::BlendColorDodge || blend == Zum::BlendColorBurn;
    const qreal backdropOpacity = steep ? 1 : 0.75;
    item("layer")->setOpacity(0.5);
    item("below")->setOpacity(backdropOpacity);
    QCOMPARE(difference(seen(), painted(blend, 0.5, backdropOpacity)), QByteArray());
}

void TestBlendEffect::softLightLooksLikeLighten()
{
    set("blend", Zum::BlendLighten);
    const QImage lighten = seen();
    set("blend", Zum::BlendMultiply);
    QVERIFY(seen() != lighten);
    set("blend", Zum::BlendSoftLight);
    QCOMPARE(seen(), lighten);
}

void TestBlendEffect::grayscaleLooksAsComputed()
{
    set("grayscale", true);
    QCOMPARE(difference(seen(), paintedGray()), QByteArray());
}

void TestBlendEffect::grayscaleLeavesBlendTypeOut()
{
    set("blend", Zum::BlendMultiply);
    set("grayscale", true);
    QCOMPARE(difference(seen(), paintedGray()), QByteArray());
}

void TestBlendEffect::nothingToBlendMeansNoShader_data()
{
    QTest::addColumn<int>("blend");
    QTest::newRow("no blend") << int(Zum::NoBlend);
    QTest::newRow("xor") << int(Zum::BlendXor);
    QTest::newRow("unknown") << 99;
}

void TestBlendEffect::nothingToBlendMeansNoShader()
{
    QFETCH(int, blend);
    const auto shaderCount = [this] {
        int count = 0;
        const QList<QQuickItem *> below = item("effect")->findChildren<QQuickItem *>();
        for (const QQuickItem *child : below)
            count +=
                child->inherits("QQuickShaderEffect") || child->inherits("QQuickShaderEffectSource") ? 1 : 0;
        return count;
    };
    set("blend", Zum::BlendScreen);
    QTRY_VERIFY(shaderCount() > 0);
    set("blend", blend);
    QCOMPARE(item("effect")->property("working").toBool(), false);
    QTRY_COMPARE(shaderCount(), 0);
    QCOMPARE(difference(seen(), painted(Zum::NoBlend, 1, 1)), QByteArray());
}

void TestBlendEffect::hiddenLayerEndsTheEffect()
{
    set("blend", Zum::BlendScreen);
    item("layer")->setVisible(false);
    QCOMPARE(item("effect")->property("working").toBool(), false);
    QCOMPARE(difference(seen(), layerPicture(false)), QByteArray());
}

void TestBlendEffect::effectIsABackdropForTheNext()
{
    set("blend", Zum::BlendMultiply);
    item("third")->setVisible(true);
    item("second")->setProperty("blend", Zum::BlendScreen);
    QImage wanted = painted(Zum::BlendMultiply, 1, 1);
    {
        QPainter painter(&wanted);
        painter.setCompositionMode(QPainter::CompositionMode_Screen);
        painter.drawImage(0, 0, layerPicture(true));
    }
    QCOMPARE(difference(seen(), wanted), QByteArray());
}

void TestBlendEffect::zoomedViewGetsSharperLayers()
{
    set("blend", Zum::BlendMultiply);
    set("zoom", 2);
    int textures = 0;
    const QList<QQuickItem *> below = item("effect")->findChildren<QQuickItem *>();
    for (const QQuickItem *child : below) {
        if (!child->inherits("QQuickShaderEffectSource"))
            continue;
        QCOMPARE(child->property("textureSize").toSize(), QSize(2 * side, 2 * side));
        ++textures;
    }
    QCOMPARE(textures, 2);
}

QTEST_MAIN(TestBlendEffect)
#include "tst_blendeffect.moc"
