#pragma once

#include <QString>

/// Constant strings of the program: file patterns, extensions, formats and fixed names.
namespace morvane {

inline const QString imageFilters = QStringLiteral("*.png *.jpg *.bmp");
/// The leading blank is part of this one and of videoFilters; a reader splits on blanks and skips empty
/// parts.
inline const QString importImageFilters = QStringLiteral(" *.png *.jpg *.jpeg *.webp *.crw *.cr2 *.jfif");
inline const QString exportImageFilters = QStringLiteral("*.png *.jpg *.webp *.tiff");
inline const QString videoFilters =
    QStringLiteral(" *.avi *.ogg *.ogv *.webm *.mp4 *.mpeg *.mov *.wmv *.mp4 *.mkv");
inline const QString iccFilters = QStringLiteral("*.icc *.icm");
inline const QString metaExtension = QStringLiteral("meta");
inline const QString metaFilter = QStringLiteral("*.meta");
inline const QString projectPathToken = QStringLiteral("($ProjectDir)");
inline const QString legacyProjectExtension = QStringLiteral("kzf");
inline const QString projectExtension = QStringLiteral("kzfx");
inline const QString timeStampFormat = QStringLiteral("yyMMddhhmmss");
inline const QString fileUrlPrefix = QStringLiteral("file:///");
inline const QString emptyFrameImage = QStringLiteral("images/empty_96.png");

inline const QString formatAvi = QStringLiteral("avi");
inline const QString formatOgv = QStringLiteral("ogv");
inline const QString formatRaw = QStringLiteral("raw");
inline const QString formatWebm = QStringLiteral("webm");
inline const QString formatApng = QStringLiteral("apng");
inline const QString formatWebp = QStringLiteral("webp");
inline const QString formatMkv = QStringLiteral("mkv");
/// Encoders know it; no list offers it.
inline const QString formatMjpg = QStringLiteral("mjpg");

inline const QString lastProjectsKey = QStringLiteral("lastprojects");
inline const QString bookmarksKey = QStringLiteral("bookmarks");
inline const QString externalEditorKey = QStringLiteral("exteditorpath");
inline const QString localeKey = QStringLiteral("localename");

inline constexpr int maxFrameWidth = 1200000;
inline constexpr int maxFrameHeight = 1200000;
inline constexpr int exportVideoMinFrameWidth = 320;
inline constexpr int exportVideoMinFrameHeight = 280;
inline constexpr int autosaveDelayMinMinutes = 3;
inline constexpr int autosaveDelayMaxMinutes = 60;

inline const QString applicationName = QStringLiteral("Morvane Capture");
inline const QString organisationName = QStringLiteral("Morvane");

/// Whether a lower-case suffix such as "png" stands in a filter list such as importImageFilters.
bool suffixInFilters(const QString &suffix, const QString &filters);

} // namespace morvane
