#pragma once

#include <QFunctionPointer>
#include <QString>

/// A part of the program in a file of its own, read when it is first needed: the libraries that it brings
/// along would hold up every start. It shares nothing with the program but an interface of virtual functions,
/// which the object that its one function makes has.
///
/// Any thread; loading may take some tenths of a second. What is loaded stays until the program ends.
class ProgramModule
{
public:
    /// Loads the module of that name, unless it is there already. One of another version of the program is
    /// refused.
    explicit ProgramModule(const QString &name, const QString &folder = standardFolder());

    /// The function of the module; null when it could not be loaded.
    template <typename Function>
    Function *entry() const
    {
        return reinterpret_cast<Function *>(m_entry);
    }
    /// Why the module could not be loaded.
    QString errorString() const
    {
        return m_error;
    }

    /// Where the modules of this program lie, installed or in the folder of a build.
    static QString standardFolder();

private:
    QFunctionPointer m_entry = nullptr;
    QString m_error;
};
