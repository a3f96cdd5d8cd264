#pragma once

namespace kiv {

/// Somebody pressed Ctrl-C while a file was read. It is thrown where reading can stop, so that what
/// was found so far is written, and ends the tool with exit code 130.
struct Interrupted {};

/// From now on an interrupt is noted and ends nothing by itself.
void noteInterrupts();

/// Throws `Interrupted` if one was noted.
void throwIfInterrupted();

} // namespace kiv
