#include "app/SystemDialogs.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace {

/// The toolkit labels its own buttons. Named here, their labels are translated with the texts of the program.
[[maybe_unused]] constexpr const char *toolkitButtons[] = {QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),
                                                           QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel")};

} // namespace

QString SystemDialogs::openFile(const QString &caption, const QString &start, const QString &filter)
{
    return QFileDialog::getOpenFileName(nullptr, caption, start, filter);
}

QStringList SystemDialogs::openFiles(const QString &caption, const QString &start, const QString &filter)
{
    return QFileDialog::getOpenFileNames(nullptr, caption, start, filter);
}

QString SystemDialogs::saveFile(const QString &caption, const QString &start, const QString &filter,
                                const QString &defaultSuffix)
{
    QFileDialog dialog(nullptr, caption, start, filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(defaultSuffix);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString SystemDialogs::selectFolder(const QString &caption, const QString &start)
{
    return QFileDialog::getExistingDirectory(nullptr, caption, start);
}

void SystemDialogs::warn(const QString &title, const QString &text)
{
    QMessageBox::warning(nullptr, title, text);
}

SystemDialogs::Answer SystemDialogs::ask(const QString &title, const QString &text, const QString &yesText,
                                         const QString &noText)
{
    QMessageBox box(QMessageBox::Question, title, text);
    QPushButton *yes = box.addButton(yesText, QMessageBox::AcceptRole);
    QPushButton *no = noText.isEmpty() ? nullptr : box.addButton(noText, QMessageBox::DestructiveRole);
    box.addButton(QMessageBox::Cancel);
    box.exec();
    if (box.clickedButton() == yes)
        return Answer::Yes;
    return no != nullptr && box.clickedButton() == no ? Answer::No : Answer::Cancel;
}
