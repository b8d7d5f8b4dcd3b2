#pragma once

#include "ui/controls/ControlHost.h"
#include "ui/dialogs/FakeModels.h"
#include "ui/dialogs/FakeWindow.h"

#include <QTemporaryDir>
#include <QTranslator>

/// While it lives, and is wanted, the program speaks a language that needs more room: every text is a third
/// longer, and so is its longest word.
class LongTexts : public QTranslator
{
public:
    explicit LongTexts(bool wanted = true);
    bool isEmpty() const override;
    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override;
};

/// A window with the scene's dialog layer, its keys and its reactions, and stand-ins for all that the dialogs
/// speak to.
class DialogHost
{
    // First: the stand-ins keep their files here.
    QTemporaryDir m_folder;

public:
    explicit DialogHost(int fontRow = 1, QSize windowSize = {1024, 600});
    /// Takes the scene away before what it speaks to.
    ~DialogHost();

    /// Opens a dialog by its file's name. Null when it does not load; warnings() tells why.
    QQuickItem *open(const QString &fileName);
    /// Closes it as its close button does.
    void close();
    /// The dialog that is open; null without one.
    QQuickItem *dialog() const;
    bool isOpen() const;

    /// The part of the open dialog with that object name.
    QQuickItem *part(const QString &objectName) const;
    /// All shown parts with that object name.
    QList<QQuickItem *> parts(const QString &objectName) const;
    /// Where one types in a part that is a field.
    QQuickItem *editor(const QString &partName) const;
    /// All shown texts of the open dialog, top to bottom.
    QStringList texts() const;
    /// Clicks a part, scrolling to it first where the dialog scrolls.
    void click(const QString &objectName);
    void click(QQuickItem *item);
    /// Clicks the shown text, which stands for the control that it names.
    void clickText(const QString &text);
    /// What shows the text in the dialog, or in one of its parts; null when nothing does.
    QQuickItem *textItem(const QString &text, const QString &partName = {}) const;
    /// Texts that reach out of their own item or of the dialog's box; its heading when the box reaches out of
    /// the window.
    QStringList textsOutside() const;

    ControlHost host;
    FakeWindow window;
    FakeFramesModel frames;
    FakeCurvesModel curves;

    QString filePath(const QString &name) const;

private:
    void scrollTo(QQuickItem *item);
};
