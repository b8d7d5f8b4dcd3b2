#pragma once

#include "support/ShellWindow.h"

#include <QTest>

/// The program as a new user meets it, and the ways to what leads through the first steps.
class FirstStepsWindow : public ShellWindow
{
public:
    using ShellWindow::ShellWindow;

    QQuickItem *part(const QString &objectName) const
    {
        return findItem("objectName", objectName);
    }
    void clickPart(const QString &objectName)
    {
        QTRY_VERIFY2(part(objectName) != nullptr, qPrintable(objectName));
        click(part(objectName));
    }
    /// What a step says below its name.
    QString wordsOf(const QString &step) const
    {
        QQuickItem *item = part(step);
        QQuickItem *words =
            item != nullptr ? findItem("objectName", QStringLiteral("stepText"), item) : nullptr;
        return words != nullptr ? words->property("text").toString() : QString();
    }
    bool isDone(const QString &step) const
    {
        return part(step) != nullptr && part(step)->property("done").toBool();
    }
    bool isPresent(const QString &step) const
    {
        return part(step) != nullptr && part(step)->property("present").toBool();
    }
    /// Presses the button of the first step and names the project in the dialog.
    bool makeProject(const QString &name = QStringLiteral("film"))
    {
        dialogs().pathAnswers.append(folder() + QLatin1Char('/') + name + QStringLiteral(".kzfx"));
        clickPart(QStringLiteral("createFirst"));
        return QTest::qWaitFor([this] { return window().projectLoaded(); });
    }
    /// Makes swapping the kind of device quick.
    void swapQuickly()
    {
        timer(1200)->setProperty("interval", 1);
    }
    /// Keeps a picture of the window in the folder that MORVANE_TEST_PICTURES names; else nothing.
    void keepPicture(const QString &name)
    {
        const QString kept = qEnvironmentVariable("MORVANE_TEST_PICTURES");
        if (!kept.isEmpty())
            window().grabWindow().save(kept + QLatin1Char('/') + name + QStringLiteral(".png"));
    }
};
