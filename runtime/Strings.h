#pragma once
#pragma GCC visibility push(default)
// Lists of strings: TStrings gives the whole-text forms and copying over any storage, TStringList
// keeps the strings in an array, sorted on demand. Every change tells the change handlers; a
// change of many lines (a new text, an assignment) tells them once.

#include <vector>

#include "runtime/Component.h"

namespace Tarvo {

// What a sorted list does with a string it holds already.
TARVO_ENUM(TDuplicates, dupIgnore, dupAccept, dupError)

class TStrings : public TChangeNotifyPersistent {
  TARVO_CLASS(TStrings, TChangeNotifyPersistent)

public:
  virtual Integer Count() const = 0;
  virtual String Strings(Integer AIndex) const = 0;
  virtual void Put(Integer AIndex, const String& AValue) = 0;
  // The index the string went to.
  virtual Integer Add(const String& AValue);
  virtual void Insert(Integer AIndex, const String& AValue) = 0;
  virtual void Delete(Integer AIndex) = 0;
  virtual void Clear() = 0;
  // The first equal string, by the list's comparison; -1 for none.
  virtual Integer IndexOf(const String& AValue) const;
  void AddStrings(const TStrings& AStrings);

  // Each string followed by a line break. Setting splits at LF, CR and CR LF; a last line
  // without a break counts.
  String GetText() const;
  void SetText(const String& AText);
  // The strings separated by commas; one that is empty or holds a blank, a comma or a quote is
  // quoted, with its quotes doubled. Setting separates at commas and at blanks outside quotes.
  String GetCommaText() const;
  void SetCommaText(const String& AText);

  void Assign(TPersistent* ASource) override;

protected:
  // Case-insensitive unless a descendant decides otherwise.
  virtual int CompareStrings(const String& A, const String& B) const;
};

class TStringList : public TStrings {
  TARVO_CLASS(TStringList, TStrings)

public:
  Integer Count() const override { return static_cast<Integer>(FList.size()); }
  String Strings(Integer AIndex) const override;
  // Raises on a sorted list, as Insert does: the position is the list's to choose.
  void Put(Integer AIndex, const String& AValue) override;
  // On a sorted list: at the string's place in the order, as Duplicates says.
  Integer Add(const String& AValue) override;
  void Insert(Integer AIndex, const String& AValue) override;
  void Delete(Integer AIndex) override;
  void Clear() override;
  Integer IndexOf(const String& AValue) const override;

  // Binary search of a sorted list: the index of the first equal string, or where it would go.
  bool Find(const String& AValue, Integer& AIndex) const;
  void Sort();

  Boolean GetSorted() const { return FSorted; }
  void SetSorted(Boolean AValue);
  TDuplicates GetDuplicates() const { return FDuplicates; }
  void SetDuplicates(TDuplicates AValue) { FDuplicates = AValue; }
  Boolean GetCaseSensitive() const { return FCaseSensitive; }
  void SetCaseSensitive(Boolean AValue);

protected:
  int CompareStrings(const String& A, const String& B) const override;

private:
  void CheckIndex(Integer AIndex) const;
  void CheckUnsorted() const;

  std::vector<String> FList;
  Boolean FSorted = false;
  TDuplicates FDuplicates = dupIgnore;
  Boolean FCaseSensitive = false;
};

} // namespace Tarvo

#pragma GCC visibility pop
