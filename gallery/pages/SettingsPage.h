#pragma once

#include "../Page.h"

class QHBoxLayout;

/// Shows the user's custom colours and the standard folders.
class SettingsPage : public Page
{
    Q_OBJECT

public:
    explicit SettingsPage(QWidget* parent = nullptr);

    static PageInfo info();

    /// Shows colours of its own in the place of the user's.
    void prepareForPicture() override;

private:
    void append(const QString& name);
    void clear();
    void showColors(const QStringList& names);

    QHBoxLayout* m_row = nullptr;
};
