#include "app/AppInfo.h"

#include "app/BuildConfig.h"

#include <QCoreApplication>
#include <QSysInfo>

namespace appinfo {

Version version()
{
    return {MORVANE_VERSION_MAJOR, MORVANE_VERSION_MINOR, MORVANE_VERSION_PATCH, MORVANE_BUILD_FIELD};
}

QString versionText()
{
    const Version v = version();
    return QStringLiteral("%1.%2.%3.%4").arg(v.major).arg(v.minor).arg(v.bugfix).arg(v.build);
}

QString fullName()
{
    const Version v = version();
    return QStringLiteral("%1 %2 %3.%4.%5.%6")
        .arg(QStringLiteral("Morvane"), QStringLiteral("Capture"))
        .arg(v.major)
        .arg(v.minor)
        .arg(v.bugfix)
        .arg(v.build);
}

QString buildSuffix()
{
    constexpr QStringView state = u"" MORVANE_RELEASE_STATE;
    if (state == u"BETA")
        return QCoreApplication::translate("MainWindow", " BETA");
    if (state == u"RC")
        return QCoreApplication::translate("MainWindow", " RC");
    return QString();
}

QVariantMap about()
{
    return {
        {QStringLiteral("buildDate"), QStringLiteral("12.06.2022")},
        {QStringLiteral("vendorName"), QStringLiteral("Morvane")},
        {QStringLiteral("appName"), QStringLiteral("Morvane")},
        {QStringLiteral("appType"), QStringLiteral("Capture")},
        {QStringLiteral("vendorWebsite"), QStringLiteral("https://morvane.example/")},
        {QStringLiteral("appWebsite"), QStringLiteral("https://morvane.example/capture")},
        {QStringLiteral("appVersion"), versionText()},
        {QStringLiteral("qtVersion"), QString::fromLatin1(qVersion())},
        {QStringLiteral("openCV"), QStringLiteral(MORVANE_OPENCV_VERSION)},
        {QStringLiteral("runningOS"), QSysInfo::prettyProductName()},
    };
}

QString windowTitle(const QString &deviceWord, int idealThreads, const QString &projectPath)
{
    QString title = fullName();
    if (!deviceWord.isEmpty())
        title += QStringLiteral(" [%1]").arg(deviceWord);
    if (idealThreads >= 0)
        title += QStringLiteral(" [%1]").arg(idealThreads);
    title += buildSuffix();
    if (!projectPath.isEmpty())
        title += QStringLiteral(" - [ %1 ]").arg(projectPath);
    return title + QStringLiteral("[*]");
}

} // namespace appinfo
