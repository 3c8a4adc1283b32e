// How readings are printed.
#pragma once

#include <string>

namespace tour {

struct Recording;

void Heading(const char* chapter, const char* what);

// Name, samples, rate and length of a recording.
void Title(const Recording& recording);

// A reading.
void Row(const char* name, double value, const std::string& unit, const std::string& note = "");

// A reading, its truth and its error.
void TruthColumns();
void Compare(const char* name, double value, double truth, const std::string& unit);

// A reading and a second one of the same quantity, got in another way, which the note names.
void BesideColumns();
void Beside(const char* name, double value, double other, const std::string& unit, const char* note);

}  // namespace tour
