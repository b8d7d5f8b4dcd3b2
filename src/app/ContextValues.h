#pragma once

#include <QList>
#include <QQmlContext>
#include <QVariant>

/// The sizes, colours and constants that the scene reads by name, and the rules that choose the sizes.
///
/// Everything here is a pure function. Pixels are device-independent ones.
namespace morvane {

/// Heights of the scene's letters in pixels: of normal text and of small text.
struct FontSizes
{
    int normal = 0;
    int smaller = 0;

    friend bool operator==(const FontSizes &, const FontSizes &) = default;
};

struct FontChoice
{
    /// What the user has chosen, 0 .. 8, or -1 while the screen's density decides.
    int chosenIndex = -1;
    /// The row in use, 0 .. 8.
    int row = 0;
    FontSizes sizes;

    friend bool operator==(const FontChoice &, const FontChoice &) = default;
};

inline constexpr int fontRowCount = 9;

/// The sizes of a row; a row outside 0 .. 8 is taken as the nearest one.
FontSizes fontSizesOfRow(int row);

/// `stored` is the setting as read, possibly invalid or a text; only a whole number from 0 to 8 counts as the
/// user's choice. `snappedDensity` is one of the screen densities that splash images and rows are made for.
FontChoice chooseFont(const QVariant &stored, int snappedDensity);

/// Scale of everything drawn in pixels: 1.0 at the smallest sizes.
double dpiScaleOf(const FontSizes &sizes);

/// Half the window's height, at most 18 and at least 14 times the normal size; the lower limit wins.
int timelineHeight(int windowHeight, const FontSizes &sizes);

struct ContextInputs
{
    FontChoice font;
    double dpiScale = 1.0;
    /// Per cent, at most 100.
    int timelineScale = 100;
    bool soundsAvailable = false;
};

/// Every plain value of the scene, in the order of publishing, ready for QQmlContext::setContextProperties.
/// Colours are texts, but "specialColor" is a colour, transparent until a dialog publishes it again.
QList<QQmlContext::PropertyPair> contextValues(const ContextInputs &inputs);

} // namespace morvane
