#pragma once

#include <QFile>
#include <QTemporaryDir>

/// A folder of QML files that lasts as long as this object.
class QmlFiles
{
public:
    QString path() const { return m_folder.path(); }

    /// Writes a file and returns its path; the null string when that fails.
    QString file(const QString& name, const QString& text) const
    {
        QFile file(m_folder.filePath(name));
        const QByteArray bytes = text.toUtf8();
        const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
        return isWritten ? file.fileName() : QString();
    }

    /// The file "main.qml", an item with @p body in its braces.
    QString item(const QString& body) const { return file(QStringLiteral("main.qml"), itemText(body)); }

    static QString itemText(const QString& body)
    {
        return QStringLiteral("import QtQuick 2.15\nItem { %1 }\n").arg(body);
    }

private:
    QTemporaryDir m_folder;
};
