#pragma once

#include <QString>

/**
 * What happened, for the one who has to find out why. However the program ends other than well, it prints
 * the seed of the present window and the last lines.
 */
namespace Journal {

/// Takes over messages, signals and the sanitizers' reports of the process. A step that does not end within
/// a minute is a failure, too.
void begin();

/// Starts anew: what was noted before has ended well.
void beginWindow(quint64 seed);
/// Notes @p line, indented by the number of event loops that run.
void note(const QString& line);
/// A sum over all that was noted: that of a seed is the same in every run.
quint64 checksum();
/// Prints every line at once.
void setVerbose(bool verbose);

/// Ends the program.
[[noreturn]] void fail(const QString& problem);

} // namespace Journal
