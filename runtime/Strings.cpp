#include "runtime/Strings.h"

#include <algorithm>

#include "containers/List.h"
#include "rtl/SysUtils.h"

namespace Tarvo {

namespace {

constexpr char LineBreak = '\n';

// Control characters and the blank separate comma text; bytes of multi-byte characters do not.
bool IsBlank(char C) { return static_cast<unsigned char>(C) <= ' '; }

bool NeedsQuotes(const String& AValue) {
  return AValue.empty() ||
         std::any_of(AValue.begin(), AValue.end(), [](char c) { return IsBlank(c) || c == ',' || c == '"'; });
}

String Quoted(const String& AValue) {
  String result = "\"";
  for (char c : AValue) {
    if (c == '"') result += '"';
    result += c;
  }
  return result + '"';
}

// Reads a quoted string from APos (at the opening quote) up to its closing quote.
String ReadQuoted(const String& AText, std::size_t& APos) {
  String result;
  for (++APos; APos < AText.size(); ++APos) {
    if (AText[APos] != '"') result += AText[APos];
    else if (APos + 1 < AText.size() && AText[APos + 1] == '"') result += AText[++APos];
    else {
      ++APos;
      break;
    }
  }
  return result;
}

} // namespace

// ---- TStrings ----

TARVO_IMPLEMENT_CLASS(TStrings)
TARVO_IMPLEMENT_ENUM(TDuplicates)

Integer TStrings::Add(const String& AValue) {
  const Integer index = Count();
  Insert(index, AValue);
  return index;
}

Integer TStrings::IndexOf(const String& AValue) const {
  for (Integer i = 0; i < Count(); ++i)
    if (CompareStrings(Strings(i), AValue) == 0) return i;
  return -1;
}

void TStrings::AddStrings(const TStrings& AStrings) {
  const TUpdateScope update(*this);
  for (Integer i = 0; i < AStrings.Count(); ++i) Add(AStrings.Strings(i));
}

String TStrings::GetText() const {
  String result;
  for (Integer i = 0; i < Count(); ++i) result += Strings(i) + LineBreak;
  return result;
}

void TStrings::SetText(const String& AText) {
  const TUpdateScope update(*this);
  Clear();
  std::size_t start = 0;
  while (start < AText.size()) {
    const std::size_t end = std::min(AText.find_first_of("\r\n", start), AText.size());
    Add(AText.substr(start, end - start));
    start = end;
    if (start < AText.size() && AText[start] == '\r') ++start;
    if (start < AText.size() && AText[start] == '\n') ++start;
  }
}

String TStrings::GetCommaText() const {
  String result;
  for (Integer i = 0; i < Count(); ++i) {
    if (i > 0) result += ',';
    const String value = Strings(i);
    result += NeedsQuotes(value) ? Quoted(value) : value;
  }
  return result;
}

void TStrings::SetCommaText(const String& AText) {
  const TUpdateScope update(*this);
  Clear();
  std::size_t pos = 0;
  const auto skipBlanks = [&] {
    while (pos < AText.size() && IsBlank(AText[pos])) ++pos;
  };
  skipBlanks();
  while (pos < AText.size()) {
    if (AText[pos] == '"') Add(ReadQuoted(AText, pos));
    else {
      const std::size_t start = pos;
      while (pos < AText.size() && !IsBlank(AText[pos]) && AText[pos] != ',') ++pos;
      Add(AText.substr(start, pos - start));
    }
    skipBlanks();
    if (pos < AText.size() && AText[pos] == ',') {
      if (++pos == AText.size()) Add(String()); // a trailing comma ends with an empty string
      skipBlanks();
    }
  }
}

void TStrings::Assign(TPersistent* ASource) {
  AssignContents<TStrings, inherited>(*this, ASource, [this](const TStrings& AFrom) { AddStrings(AFrom); });
}

int TStrings::CompareStrings(const String& A, const String& B) const { return CompareText(A, B); }

// ---- TStringList ----

TARVO_IMPLEMENT_CLASS(TStringList)

String TStringList::Strings(Integer AIndex) const {
  CheckIndex(AIndex);
  return FList[std::size_t(AIndex)];
}

void TStringList::Put(Integer AIndex, const String& AValue) {
  CheckUnsorted();
  CheckIndex(AIndex);
  Change(FList[std::size_t(AIndex)], AValue);
}

Integer TStringList::Add(const String& AValue) {
  if (!FSorted) return inherited::Add(AValue);
  Integer index = 0;
  if (Find(AValue, index)) {
    if (FDuplicates == dupIgnore) return index;
    if (FDuplicates == dupError) throw EListError("String list does not allow duplicates");
  }
  FList.insert(FList.begin() + index, AValue);
  Changed();
  return index;
}

void TStringList::Insert(Integer AIndex, const String& AValue) {
  CheckUnsorted();
  if (AIndex < 0 || AIndex > Count()) RaiseListIndexError(AIndex);
  FList.insert(FList.begin() + AIndex, AValue);
  Changed();
}

void TStringList::Delete(Integer AIndex) {
  CheckIndex(AIndex);
  FList.erase(FList.begin() + AIndex);
  Changed();
}

void TStringList::Clear() {
  if (FList.empty()) return;
  FList.clear();
  Changed();
}

Integer TStringList::IndexOf(const String& AValue) const {
  if (!FSorted) return inherited::IndexOf(AValue);
  Integer index = 0;
  return Find(AValue, index) ? index : -1;
}

bool TStringList::Find(const String& AValue, Integer& AIndex) const {
  const auto it = std::lower_bound(FList.begin(), FList.end(), AValue,
                                   [this](const String& A, const String& B) { return CompareStrings(A, B) < 0; });
  AIndex = static_cast<Integer>(it - FList.begin());
  return it != FList.end() && CompareStrings(*it, AValue) == 0;
}

void TStringList::Sort() {
  std::stable_sort(FList.begin(), FList.end(),
                   [this](const String& A, const String& B) { return CompareStrings(A, B) < 0; });
  Changed();
}

void TStringList::SetSorted(Boolean AValue) {
  if (AValue && !FSorted) Sort();
  FSorted = AValue;
}

void TStringList::SetCaseSensitive(Boolean AValue) {
  if (AValue == FCaseSensitive) return;
  FCaseSensitive = AValue;
  if (FSorted) Sort();
}

int TStringList::CompareStrings(const String& A, const String& B) const {
  return FCaseSensitive ? CompareStr(A, B) : CompareText(A, B);
}

void TStringList::CheckIndex(Integer AIndex) const {
  if (AIndex < 0 || AIndex >= Count()) RaiseListIndexError(AIndex);
}

void TStringList::CheckUnsorted() const {
  if (FSorted) throw EListError("Operation not allowed on sorted list");
}

} // namespace Tarvo
