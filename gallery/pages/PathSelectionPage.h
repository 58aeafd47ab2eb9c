#pragma once

#include "../Page.h"

class PathSelectionWidget;

/// Shows PathSelectionWidget with a real folder dialog and the real space on the disk.
class PathSelectionPage : public Page
{
    Q_OBJECT

public:
    explicit PathSelectionPage(QWidget* parent = nullptr);

    static PageInfo info();

    void prepareForPicture() override;

private:
    Twins<PathSelectionWidget> m_fields;
    Twins<PathSelectionWidget> m_plainFields;
};
