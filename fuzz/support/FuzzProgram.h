#pragma once

#include <QByteArray>
#include <QString>

/// What all fuzzed programs stand on: a Qt application without a screen, in virtual time, whose files lie in
/// memory. The folder beside the program that is called config holds the shipped files at first.
namespace fuzzprogram {

/// A folder in memory that is the program's own and empty at its start.
QString folder();
/// Full path of a file in config/ beside the program.
QString configPath(const char *name);
/// Writes a file, with a time of change that no earlier content had.
void write(const QString &path, const QByteArray &content);
/// Ends the run as a find.
void require(bool holds);

} // namespace fuzzprogram

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
