#pragma once

/// From a screen's density to the row of font sizes that suits it.
class ScreenDensity
{
public:
    /// The entry of 96, 120, 144, 192, 240, 288, 384, 480 that stands for a desktop's logical horizontal
    /// density in dots per inch.
    ///
    /// The density is scaled by itself first, so that a screen at 120 counts as 150. Then the nearest entry
    /// strictly below is taken: an exact hit falls to the entry before it. An entry more than 999 away does
    /// not count; with none left the answer is 96.
    static int snapped(int logicalDpi);

    /// The index of the font row, 0 .. 7, for a snapped density; 1 for a number that is not in the list.
    static int fontIndex(int snappedDensity);
};
