#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

/**
 * The style sheet of the application: one of the two reference sheets, none, or a file that is read again
 * whenever it is saved.
 */
class StyleController : public QObject
{
    Q_OBJECT

public:
    explicit StyleController(QObject* parent = nullptr);
    ~StyleController() override;

    /// "dark", "light" and "none".
    static QStringList builtInStyles();

    /// A built-in style, or the absolute path of a file. Empty until setStyle() succeeded once.
    QString style() const { return m_style; }

    /// Applies @p style, a built-in name or a file. When the file cannot be read the application keeps the
    /// style it has, and the result is false.
    bool setStyle(const QString& style);

Q_SIGNALS:
    /// The application has another sheet, or the watched file's new contents.
    void styleApplied(const QString& style);

private:
    void watch();
    void reload();
    void apply(const QByteArray& contents);

    QString m_style;
    QByteArray m_contents;
    QFileSystemWatcher m_watcher;
    QTimer m_reloadTimer;
};

/// @p sheet with the relative paths in its urls taken from @p folder, as its author meant them: Qt would
/// take them from the program's working directory.
QString withAbsoluteUrls(const QString& sheet, const QString& folder);
