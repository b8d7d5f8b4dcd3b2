#pragma once

#include "app/facade/ProjectFacet.h"

/// The program as a whole: its dialogs, its title, its documents and the way out.
class ShellFacet : public ProjectFacet
{
    Q_OBJECT
    /// File name of the dialog that shows; empty for none.
    Q_PROPERTY(QString qmlDialogUrl READ qmlDialogUrl WRITE setQmlDialogUrl NOTIFY qmlDialogUrlChanged)
    Q_PROPERTY(
        bool qmlDialogVisible READ qmlDialogVisible WRITE setQmlDialogVisible NOTIFY qmlDialogVisibleChanged)
    Q_PROPERTY(bool closing READ closing NOTIFY closingChanged)
    Q_PROPERTY(int closeAttempts READ closeAttempts NOTIFY closeAttemptsChanged)
    Q_PROPERTY(QVariantMap appInfo READ appInfo CONSTANT)
    Q_PROPERTY(QVariantList docs READ docs NOTIFY docsChanged)

public:
    explicit ShellFacet(std::unique_ptr<AppControllers> controllers);

    QString qmlDialogUrl() const;
    void setQmlDialogUrl(const QString &fileName);
    bool qmlDialogVisible() const;
    void setQmlDialogVisible(bool visible);
    bool closing() const;
    int closeAttempts() const;
    QVariantMap appInfo() const;
    QVariantList docs() const;

    using QWindow::setTitle;

public slots:
    /// With `force` unsaved work is given up. Nothing happens when a part of the program refuses.
    void quit(bool force);
    void quit();
    void quitApplication(bool force);
    void quitApplication();
    /// Writes the title anew from what the program knows.
    void setTitle();
    /// Reads the user's documentation anew.
    void loadDocs();

signals:
    void qmlDialogUrlChanged();
    void qmlDialogVisibleChanged();
    void docsChanged();
    void closingChanged();
    void closeAttemptsChanged();
    void aboutToCloseApp();

private:
    QString m_qmlDialogUrl;
    bool m_qmlDialogVisible = false;
};
