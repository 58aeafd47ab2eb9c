#pragma once

#include <QString>

class Page;

/**
 * The C++ that builds the enabled components of @p page and its demonstrations as they are at the moment:
 * their includes and a function of a parent that is named after the page. It sets what differs from a new
 * component in the same style sheet. What only the gallery has is built as its nearest public base class.
 */
QString codeText(const Page* page);

/// @p text as a literal.
QString codeString(const QString& text);
