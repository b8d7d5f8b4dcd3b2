#pragma once

#include "support/ShellWindow.h"

#include <memory>
#include <QMap>
#include <QTemporaryDir>

/// The program in its window over a folder of projects, which outlives the window: it can be closed and
/// started again. What it does, it does as a user would, with the mouse and the keys.
class FilmWindow
{
public:
    /// Starts the program with no settings and no project.
    FilmWindow();

    ShellWindow &shell()
    {
        return *m_shell;
    }
    FramesModel &frames()
    {
        return m_shell->frames();
    }
    FakeDialogs &dialogs()
    {
        return m_shell->dialogs();
    }
    /// Ends the program and starts it again with the settings that it left.
    void restart();
    /// What the scene has warned of since the last start.
    QStringList sceneWarnings() const
    {
        return m_shell->sceneWarnings();
    }

    QString path(const QString &name) const
    {
        return m_folder.filePath(QStringLiteral("films/") + name);
    }
    /// The folder of a project's captured pictures, with a separator at its end.
    QString capturedFolder(const QString &project) const
    {
        return path(project + QStringLiteral("_files/cap/"));
    }
    static QString pictureName(int number, const QString &label = QStringLiteral("norm"));
    /// A picture and its thumbnail in a project's folders, in a colour that its number gives.
    bool writePicture(const QString &project, int number) const;
    /// Every file and folder below the projects' folder with the hash of what is in it; lock files are left
    /// out.
    QMap<QString, QByteArray> listing() const;
    /// The rows of a project file, written as rows() does.
    QStringList rowsOnDisk(const QString &project) const;

    /// Chooses an entry of the main menu with the mouse.
    void chooseInMenu(const QString &text);
    /// Makes a project through the menu.
    bool create(const QString &project);
    /// Opens a project by key and file dialog.
    bool open(const QString &project);
    /// Brings pictures into the open project as a capture does.
    void shoot(const QString &project, int first, int count);
    /// The frames in order: the number of the picture, with "m" when mirrored and "h" when hidden.
    QStringList rows();
    /// The rows whose frame is shown as selected on the strip.
    QStringList selectedOnStrip();
    /// How many frames of the strip show a picture that was read from the disk.
    int thumbnailsOnStrip();

    /// Waits until no action and no file operation runs, and all that follows them is over.
    bool waitIdle();
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Each brings the item of that property into sight, and clicks it.
    void clickText(const QString &text);
    void clickTip(const QString &toolTip);
    void clickLabel(const QString &label);
    void clickFrame(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void dragOverFrames(int from, int to);
    /// Puts a text into the field of that label and leaves it with Return.
    void typeInto(const QString &label, const QString &text);
    QString dialogFile();

private:
    void start();
    QQuickItem *frameItem(int row);
    static QPoint middleOf(QQuickItem *item);
    void clickItem(const char *property, const QString &value);

    QTemporaryDir m_folder;
    std::unique_ptr<ShellWindow> m_shell;
};
