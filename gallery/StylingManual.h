#pragma once

#include <QString>

/**
 * The manual of what a style sheet can use, in Markdown, read from the components on the gallery's pages:
 * for each one the object names of its children, the properties that a rule sets with `qproperty-`, the
 * dynamic properties and style hints that it selects on. The same components give the same text.
 */
QString stylingManual();
