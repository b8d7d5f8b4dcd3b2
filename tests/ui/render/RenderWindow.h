#pragma once

#include "support/ShellWindow.h"

#include <memory>
#include <QTemporaryDir>

/// The program on its Timing tab with a film open, and the ways to what the render pane and its dialogs show.
/// It can be started again with the settings that it left.
class RenderWindow
{
public:
    struct Options
    {
        int frames = 12;
        QSize size{1280, 760};
        int fontRow = 1;
        QString locale = QStringLiteral("en_US");
        QVariantMap settings;
    };

    RenderWindow();
    explicit RenderWindow(const Options &options);

    ShellWindow &shell()
    {
        return *m_shell;
    }
    WebcamGlobal &global()
    {
        return m_shell->global();
    }
    FramesModel &frames()
    {
        return m_shell->frames();
    }
    MainWindow &window()
    {
        return m_shell->window();
    }
    Settings &settings()
    {
        return m_shell->controllers().settings();
    }

    /// Back to what a new project has, with the range over the first twelve frames.
    void reset();
    /// Ends the program and starts it anew with its settings and another film.
    void restart();
    /// Gives every frame that has no picture on the disk one of that size, in a colour that its row gives.
    void writePictures(QSize size);

    /// The shown item of that object name; null without one.
    QQuickItem *part(const QString &objectName) const;
    /// The item that shows this text; null without one.
    QQuickItem *text(const QString &text) const;
    /// The entry of that text of a list that is open; null without one.
    QQuickItem *entry(const QString &text) const;
    /// The text that a part shows; empty when it does not show.
    QString textOf(const QString &objectName) const;
    /// The panel of the tab.
    QQuickItem *pane() const
    {
        return m_shell->item(QStringLiteral("controlsPanesBox"));
    }
    /// The button of a row of choices.
    QQuickItem *choice(const QString &rowName, int index) const;
    /// Clicks what is given, scrolling to it first.
    void click(QQuickItem *item);
    void click(const QString &objectName);
    void clickText(const QString &text);
    /// Types into the field of a part and leaves it with Return.
    void type(const QString &objectName, const QString &text);
    QString dialogFile() const
    {
        return m_shell->window().qmlDialogUrl();
    }
    /// Keeps a picture of the window in the folder that MORVANE_TEST_PICTURES names; else nothing.
    void keepPicture(const QString &name) const;

private:
    void start();

    QTemporaryDir m_folder;
    Options m_options;
    int m_films = 0;
    std::unique_ptr<ShellWindow> m_shell;
};
