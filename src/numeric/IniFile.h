// The library's own INI engine. A profile file is held as its lines, so that a write changes
// only the line of its key and keeps every other line, comment, blank line and the order;
// sections and keys are found without regard to letter case. Files are read as UTF-8 or, with
// a byte-order mark, as UTF-16, and written back in the encoding they came in, atomically.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace lx::ini {

class IniFile {
 public:
  enum class LoadResult { kLoaded, kMissing, kUnreadable };
  enum class Encoding { kUtf8, kUtf8Bom, kUtf16Le, kUtf16Be, kLatin1 };

  // Reads the file. A missing file loads as empty; a folder or an unreadable file does not.
  LoadResult Load(const QString& path);
  // The trimmed value of the key (a surrounding pair of quotes removed), or nothing.
  std::optional<QString> Value(const QString& section, const QString& key) const;
  // Sets the key's value: its own line when it exists, else a new line at the end of its
  // section, else a new section at the end of the file. False when the section or key cannot
  // be written as a line of the file.
  bool SetValue(const QString& section, const QString& key, const QString& value);
  // Writes the whole file atomically; false (and the file untouched) on any failure.
  bool Save(const QString& path) const;

  Encoding GetEncoding() const { return encoding_; }

 private:
  int FindSection(const QString& section) const;
  int FindKey(int sectionLine, const QString& key) const;
  int EndOfSection(int sectionLine) const;

  QStringList lines_;
  QString newline_ = QStringLiteral("\n");
  bool finalNewline_ = true;
  Encoding encoding_ = Encoding::kUtf8;
};

// The platform's profile string read: the value (or the default when the key or the file is
// missing), cut to bufferSize - 1 characters. Returns the number of characters given.
int ReadProfileString(const QString& file, const QString& section, const QString& key,
                      const QString& defaultText, QString* out, int bufferSize = 255);
// The platform's profile string write; false when nothing was written.
bool WriteProfileString(const QString& file, const QString& section, const QString& key,
                        const QString& value);

}  // namespace lx::ini
