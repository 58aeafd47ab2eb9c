#pragma once

#include <UiComponents/SheetColors.h>

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

/**
 * The style sheet of the application: one of the reference sheets, none, or a file that it reads again
 * whenever the file is saved.
 */
class StyleController : public QObject
{
    Q_OBJECT

public:
    explicit StyleController(QObject* parent = nullptr);
    ~StyleController() override;

    /// "dark", "light", "high-contrast" and "none".
    static QStringList builtInStyles();

    /// A built-in style, or the absolute path of a file. Empty until setStyle() succeeded once.
    QString style() const { return m_style; }

    /// Applies @p style, a built-in name or a file. Returns false and keeps the present style when the file
    /// cannot be read.
    bool setStyle(const QString& style);

    /// Whether the style is a file.
    bool isFile() const;

    /// The text of the sheet, without the rules for the gallery's own window.
    QString sheet() const { return QString::fromUtf8(m_contents); }

    /// Applies @p text in the place of the sheet's, until the next style or the next change of the file.
    void setSheet(const QString& text) { apply(text.toUtf8()); }

    /// Writes sheet() into the file. Returns false when that fails.
    bool save();

Q_SIGNALS:
    /// The application has a new sheet, or the new contents of the file.
    void styleApplied(const QString& style);

private:
    void watch();
    void reload();
    void apply(const QByteArray& contents);

    // Links follow the sheet.
    const SheetColors m_colors;
    QString m_style;
    QByteArray m_contents;
    QFileSystemWatcher m_watcher;
    QTimer m_reloadTimer;
};

/// Returns @p sheet with the relative paths in its urls resolved against @p folder. Qt resolves them against
/// the working directory of the program.
QString withAbsoluteUrls(const QString& sheet, const QString& folder);
