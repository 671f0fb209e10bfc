#include "numeric/IniFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringConverter>

#include <algorithm>

namespace lx::ini {
namespace {

enum class LineType { kOther, kSection, kKey };

struct ParsedLine {
  LineType type = LineType::kOther;
  QStringView name;   // section or key, trimmed
  QStringView value;  // trimmed, quotes removed
};

// A value written in quotes reads without them, as the Windows profile functions do.
QStringView Unquote(QStringView value) {
  if (value.size() >= 2 && (value.front() == u'"' || value.front() == u'\'') &&
      value.back() == value.front())
    return value.mid(1, value.size() - 2);
  return value;
}

ParsedLine Parse(QStringView line) {
  const QStringView text = line.trimmed();
  if (text.isEmpty() || text.front() == u';') return {};
  if (text.front() == u'[') {
    const qsizetype close = text.lastIndexOf(u']');
    if (close < 1) return {};
    return {LineType::kSection, text.mid(1, close - 1).trimmed(), {}};
  }
  const qsizetype equals = text.indexOf(u'=');
  if (equals < 0) return {LineType::kKey, text, {}};
  return {LineType::kKey, text.left(equals).trimmed(), Unquote(text.mid(equals + 1).trimmed())};
}

bool SameName(QStringView a, QStringView b) {
  return a.compare(b, Qt::CaseInsensitive) == 0;
}

bool HasLineBreak(QStringView text) {
  return text.contains(u'\n') || text.contains(u'\r');
}

// A value never spans lines: a line break in it would turn its rest into lines of their own.
QString OneLine(QString value) {
  value.replace(u'\r', u' ');
  value.replace(u'\n', u' ');
  return value;
}

bool ValidSection(const QString& section) {
  return !HasLineBreak(section);
}

bool ValidKey(const QString& key) {
  const QString name = key.trimmed();
  return !name.isEmpty() && !HasLineBreak(name) && !name.contains(u'=') && name.front() != u'[' &&
         name.front() != u';';
}

QString Decode(QStringDecoder::Encoding encoding, const QByteArray& bytes) {
  QStringDecoder decoder(encoding, QStringDecoder::Flag::Stateless);
  return decoder.decode(bytes);
}

QByteArray Encode(const QString& text, IniFile::Encoding encoding) {
  switch (encoding) {
    case IniFile::Encoding::kUtf16Le: {
      QStringEncoder encoder(QStringEncoder::Utf16LE);
      return QByteArray("\xFF\xFE", 2) + QByteArray(encoder.encode(text));
    }
    case IniFile::Encoding::kUtf16Be: {
      QStringEncoder encoder(QStringEncoder::Utf16BE);
      return QByteArray("\xFE\xFF", 2) + QByteArray(encoder.encode(text));
    }
    case IniFile::Encoding::kUtf8Bom:
      return QByteArray("\xEF\xBB\xBF", 3) + text.toUtf8();
    case IniFile::Encoding::kLatin1: {
      // A legacy file keeps its bytes; only text it cannot hold moves it to UTF-8.
      const bool fits =
          std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x100; });
      return fits ? text.toLatin1() : text.toUtf8();
    }
    case IniFile::Encoding::kUtf8:
      break;
  }
  return text.toUtf8();
}

}  // namespace

IniFile::LoadResult IniFile::Load(const QString& path) {
  lines_.clear();
  const QFileInfo info(path);
  if (!info.exists()) return LoadResult::kMissing;
  QFile file(path);
  if (!info.isFile() || !file.open(QIODevice::ReadOnly)) return LoadResult::kUnreadable;
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) return LoadResult::kUnreadable;

  QString text;
  if (bytes.startsWith("\xFF\xFE")) {
    encoding_ = Encoding::kUtf16Le;
    text = Decode(QStringDecoder::Utf16LE, bytes.mid(2));
  } else if (bytes.startsWith("\xFE\xFF")) {
    encoding_ = Encoding::kUtf16Be;
    text = Decode(QStringDecoder::Utf16BE, bytes.mid(2));
  } else if (bytes.startsWith("\xEF\xBB\xBF")) {
    encoding_ = Encoding::kUtf8Bom;
    text = QString::fromUtf8(bytes.mid(3));
  } else {
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    text = utf8.decode(bytes);
    encoding_ = Encoding::kUtf8;
    if (utf8.hasError()) {
      encoding_ = Encoding::kLatin1;
      text = QString::fromLatin1(bytes);
    }
  }
  if (text.isEmpty()) return LoadResult::kLoaded;
  // Lines keep their own "\r", so a file's line ends come back exactly as they were.
  lines_ = text.split(u'\n');
  finalNewline_ = text.endsWith(u'\n');
  if (finalNewline_) lines_.removeLast();
  newline_ = lines_.isEmpty() || !lines_.front().endsWith(u'\r') ? QStringLiteral("\n")
                                                                 : QStringLiteral("\r\n");
  return LoadResult::kLoaded;
}

int IniFile::FindSection(const QString& section) const {
  const QStringView name = QStringView(section).trimmed();
  for (int i = 0; i < lines_.size(); ++i) {
    const ParsedLine line = Parse(lines_[i]);
    if (line.type == LineType::kSection && SameName(line.name, name)) return i;
  }
  return -1;
}

int IniFile::FindKey(int sectionLine, const QString& key) const {
  const QStringView name = QStringView(key).trimmed();
  if (name.isEmpty()) return -1;
  for (int i = sectionLine + 1; i < lines_.size(); ++i) {
    const ParsedLine line = Parse(lines_[i]);
    if (line.type == LineType::kSection) break;
    if (line.type == LineType::kKey && SameName(line.name, name)) return i;
  }
  return -1;
}

// The index just behind the section's last non-blank line.
int IniFile::EndOfSection(int sectionLine) const {
  int end = sectionLine + 1;
  for (int i = sectionLine + 1; i < lines_.size(); ++i) {
    if (Parse(lines_[i]).type == LineType::kSection) break;
    if (!lines_[i].trimmed().isEmpty()) end = i + 1;
  }
  return end;
}

std::optional<QString> IniFile::Value(const QString& section, const QString& key) const {
  const int sectionLine = FindSection(section);
  if (sectionLine < 0) return std::nullopt;
  const int keyLine = FindKey(sectionLine, key);
  if (keyLine < 0) return std::nullopt;
  return Parse(lines_[keyLine]).value.toString();
}

bool IniFile::SetValue(const QString& section, const QString& key, const QString& value) {
  if (!ValidSection(section) || !ValidKey(key)) return false;
  const QString text = OneLine(value);
  const QString lineEnd = newline_ == QLatin1String("\r\n") ? QStringLiteral("\r") : QString();
  const QString newLine = key.trimmed() + u'=' + text + lineEnd;
  const int sectionLine = FindSection(section);
  if (sectionLine < 0) {
    if (!lines_.isEmpty() && !lines_.back().trimmed().isEmpty()) lines_.append(lineEnd);
    lines_.append(u'[' + section.trimmed() + u']' + lineEnd);
    lines_.append(newLine);
    finalNewline_ = true;
    return true;
  }
  const int keyLine = FindKey(sectionLine, key);
  if (keyLine < 0) {
    const int end = EndOfSection(sectionLine);
    if (end == lines_.size()) finalNewline_ = true;
    lines_.insert(end, newLine);
    return true;
  }
  // Keep the key as it was spelt, and the blanks around "=", so the line changes only its value.
  QString& line = lines_[keyLine];
  const bool crlf = line.endsWith(u'\r');
  qsizetype valueStart = line.indexOf(u'=');
  if (valueStart < 0) {
    line = newLine;
    return true;
  }
  ++valueStart;
  while (valueStart < line.size() && (line[valueStart] == u' ' || line[valueStart] == u'\t'))
    ++valueStart;
  line = line.left(valueStart) + text + (crlf ? QStringLiteral("\r") : QString());
  return true;
}

bool IniFile::Save(const QString& path) const {
  const QFileInfo info(path);
  if (info.exists() && (!info.isFile() || !info.isWritable())) return false;
  QString text = lines_.join(u'\n');
  if (finalNewline_ && !lines_.isEmpty()) text += u'\n';
  const QByteArray bytes = Encode(text, encoding_);
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return false;
  if (file.write(bytes) != bytes.size()) {
    file.cancelWriting();
    return false;
  }
  return file.commit();
}

int ReadProfileString(const QString& file, const QString& section, const QString& key,
                      const QString& defaultText, QString* out, int bufferSize) {
  QString text = defaultText;
  IniFile ini;
  if (!file.isEmpty() && ini.Load(file) == IniFile::LoadResult::kLoaded) {
    if (std::optional<QString> value = ini.Value(section, key)) text = *std::move(value);
  }
  const qsizetype limit = bufferSize > 0 ? bufferSize - 1 : 0;
  if (text.size() > limit) {
    text.truncate(limit);
    if (!text.isEmpty() && text.back().isHighSurrogate()) text.chop(1);
  }
  const int length = static_cast<int>(text.size());
  if (out) *out = std::move(text);
  return length;
}

bool WriteProfileString(const QString& file, const QString& section, const QString& key,
                        const QString& value) {
  if (file.isEmpty()) return false;
  IniFile ini;
  // A file that exists but cannot be read is never replaced by one holding a single key.
  if (ini.Load(file) == IniFile::LoadResult::kUnreadable) return false;
  return ini.SetValue(section, key, value) && ini.Save(file);
}

}  // namespace lx::ini
