#pragma once

#include <QString>
#include <QStringList>

class Page;
class QWidget;

/// The sections of the page list, in the order in which it shows them.
enum class PageGroup {
    Colour,
    Inputs,
    Layout,
    Bubbles,
    Guides,
    Services,
};

/// What is known about a page before it is built.
struct PageInfo
{
    /// Stable, lower case with hyphens: what the command line and picture names use.
    QString id;
    /// In the language of the moment.
    QString title;
    PageGroup group = PageGroup::Inputs;
    /// What else the search finds the page by.
    QStringList keywords;
    /// The classes and headers of the library that the page shows, by name.
    QStringList covers;
    /// Builds the page; the parent owns it.
    Page* (*create)(QWidget* parent) = nullptr;
};
