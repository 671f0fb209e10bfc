// Lengths, reals and whole numbers as text. Lengths are held in nanometres and shown and typed
// in micrometres (factor 1000). Every reader returns true when the text was not a number, and
// then leaves its output untouched.
#pragma once

#include <QString>

class QLineEdit;

namespace lx {

// Writers: "%.6f" with trailing zeros (and a bare separator) trimmed; whole numbers as "%d".
void PrintMicrons(double nanometres, wchar_t* out, int size);
void PrintMicrons(double nanometres, QString* out);
void PrintMicrons(double nanometres, QLineEdit* edit);
void PrintDouble(double value, wchar_t* out, int size);
void PrintDouble(double value, QLineEdit* edit);
void PrintNumber(int value, wchar_t* out, int size);
void PrintNumber(int value, QLineEdit* edit);
void PrintNumber(int value, QString* out);

// Silent readers.
bool GetCoordinateNoMessage(const wchar_t* text, double* nanometres);
bool GetCoordinateNoMessage(const QString& text, double* nanometres);
bool GetDoubleNoMessage(const wchar_t* text, double* value);
bool GetDoubleNoMessage(const QString& text, double* value);
bool GetNumberNoMessage(const QString& text, int* value);

// Loud readers: on failure they show "'%.20s' is not a valid number" through ShowK6Error.
bool GetCoordinate(const QString& text, double* nanometres);
bool GetDouble(const QString& text, double* value);
bool GetNumber(const QString& text, int* value);

// Shows "'%.20s' is not a valid number" with help context 0.
void NotAValidNumber(const wchar_t* text);
void NotAValidNumber(const QString& text);

// The message text itself, "'%.20s' is not a valid number".
QString NotAValidNumberText(const QString& text);
// The reader's own copy of a text: its first 30 characters (as the coordinate readers quote it).
QString ReaderCopy(const QString& text);

bool CoordinatesEqual(double a, double b);
double IncreaseValue(double value);
double DecreaseValue(double value);
bool SimpleValues(const double* values, int count);

}  // namespace lx
