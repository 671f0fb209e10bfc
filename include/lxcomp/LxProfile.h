// Typed settings in the host's profile (INI) file: one value per call, with a default, optional
// bounds and the library's own number text (lengths in micrometres, trimmed reals). A null file
// means there is no profile: readers return their default untouched and writers do nothing.
#pragma once

#include <QString>

namespace lx {

// Readers. A missing key yields the default (bounded); a number that does not read yields the
// default unbounded (lengths, reals) or 0 and then the lower bound (integers). Bounds: the value
// is raised to min; when max > min it is also lowered to max.
bool GetIniFileBool(const wchar_t* file, const wchar_t* section, const wchar_t* key, bool def);
long GetIniFileInteger(const wchar_t* file, const wchar_t* section, const wchar_t* key, long def);
long GetIniFileInteger(const wchar_t* file, const wchar_t* section, const wchar_t* key, long def,
                       long min, long max);
// Lengths are stored in micrometres and returned in nanometres.
double GetIniFileMicrons(const wchar_t* file, const wchar_t* section, const wchar_t* key,
                         double def, double min, double max);
double GetIniFileDouble(const wchar_t* file, const wchar_t* section, const wchar_t* key, double def,
                        double min, double max);
// At most 254 characters of the value are read.
void GetIniFileString(const wchar_t* file, const wchar_t* section, const wchar_t* key,
                      const wchar_t* def, QString* out);

// Writers. Each changes only its own key's line; a new key goes to the end of its section, a
// new section to the end of the file.
void WriteIniFileBool(const wchar_t* file, const wchar_t* section, const wchar_t* key, bool value);
void WriteIniFileChar(const wchar_t* file, const wchar_t* section, const wchar_t* key,
                      wchar_t value);
void WriteIniFileInteger(const wchar_t* file, const wchar_t* section, const wchar_t* key,
                         long value);
void WriteIniFileString(const wchar_t* file, const wchar_t* section, const wchar_t* key,
                        const wchar_t* value);
void WriteIniFileMicrons(const wchar_t* file, const wchar_t* section, const wchar_t* key,
                         double nanometres);
void WriteIniFileDouble(const wchar_t* file, const wchar_t* section, const wchar_t* key,
                        double value);

}  // namespace lx
