#pragma once

#include "app/facade/ShellFacet.h"

#include <QStringList>

/// The main window, and the object that the scene calls "MainWindow". What it offers is declared facet by
/// facet in app/facade; this class makes the window stand, loads the scene and takes the window's events.
class MainWindow : public ShellFacet
{
    Q_OBJECT

public:
    inline static const QString sceneUrl = QStringLiteral("qrc:/MorvaneRoot.qml");

    enum ExportDialogs {
        ExportVideoDialog,
        ExportSequenceDialog,
    };
    Q_ENUM(ExportDialogs)

    enum ListFileTypes {
        ListVideoFiles,
        ListImageFiles,
        ListMetasFiles,
    };
    Q_ENUM(ListFileTypes)

    /// `arguments` are the program's own, its name first; a project file named there is opened.
    MainWindow(std::unique_ptr<AppControllers> controllers, const QStringList &arguments);
    ~MainWindow() override;

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void prepareWindow();
    void publishContext();
    void connectControllers();
    void shootFrom(const QString &file);
    void openNamedProject(const QStringList &arguments);
    void takeDrop(const QList<QUrl> &urls);
};
