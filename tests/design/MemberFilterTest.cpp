#include <gtest/gtest.h>

#include "design/MemberFilter.h"
#include "reflection/RttiTypes.h"
#include "runtime/Controls.h"
#include "runtime/NamedTypes.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace MemberFilterTesting {

// Words match in any order and case, each as often as given; masks take stars, question marks and sets.
TEST(MatchesTest, WordsAndMasks) {
  const struct {
    const char* Name;
    TRef<IMatches> Pattern;
    const char* Text;
    Boolean Matches;
  } cases[] = {
      {"both words, other order and case", New<TWordsMatch>(" left TOP "), "Top and Left", true},
      {"one word only", New<TWordsMatch>("left top"), "Left margin", false},
      {"a word twice needs two", New<TWordsMatch>("ab ab"), "abc", false},
      {"a word twice found twice", New<TWordsMatch>("ab ab"), "abab", true},
      {"no words", New<TWordsMatch>(""), "anything", true},
      {"star and case", New<TMask>("font*"), "FontName", true},
      {"question mark is one character", New<TMask>("?op"), "Stop", false},
      {"set", New<TMask>("[a-c]*"), "Bob", true},
      {"negated set", New<TMask>("[!a-c]*"), "Bob", false},
  };
  Testing::ForEachRow(cases, [](const auto& ACase) { EXPECT_EQ(ACase.Pattern->Matches(ACase.Text), ACase.Matches); });
}

// The class only when both are given; a type always, the same or a descendant class type; then
// the name.
TEST(MemberFilterTest, ClassTypeAndName) {
  const TRef<ITypeInfo> component = TTypeInfoHelper::TypeInfo(TypeInfo<TComponent*>());
  const TRef<ITypeInfo> control = TTypeInfoHelper::TypeInfo(TypeInfo<TControl*>());
  const TRef<ITypeInfo> integer = TTypeInfoHelper::TypeInfo(&TypeInfo_Integer);
  const TRef<ITypeInfo> color = TTypeInfoHelper::TypeInfo(&TypeInfo_TColor);
  const TClass controlClass = TControl::ClassInfo(), componentClass = TComponent::ClassInfo();
  const struct {
    const char* Name;
    TRef<IMemberFilter> Filter;
    TClass Class;
    const char* Member;
    TRef<ITypeInfo> Type;
    Boolean Matches;
  } cases[] = {
      {"descendant class type", New<TMemberFilter>("", nullptr, component), nullptr, "Owner", control, true},
      {"ancestor class type", New<TMemberFilter>("", nullptr, control), nullptr, "Owner", component, false},
      {"other kinds only the same type", New<TMemberFilter>("", nullptr, integer), nullptr, "Color", color, false},
      {"no class given matches", New<TMemberFilter>("", controlClass, integer), nullptr, "Left", integer, true},
      {"an ancestor class is no match", New<TMemberFilter>("", controlClass, integer), componentClass, "Left", integer,
       false},
      {"a filter without a type", New<TMemberFilter>("Left", nullptr, nullptr), controlClass, "Left", integer, false},
      {"the name by words", New<TMemberFilter>("left", controlClass, integer), controlClass, "LEFT", integer, true},
      {"another name", New<TMemberFilter>("left", controlClass, integer), controlClass, "Top", integer, false},
  };
  Testing::ForEachRow(cases, [](const auto& ACase) {
    EXPECT_EQ(ACase.Filter->Matches(ACase.Class, ACase.Member, ACase.Type), ACase.Matches);
  });

  // Only filters without a mask can be equal: a mask is compared as an object.
  EXPECT_TRUE(New<TMemberFilter>("", controlClass, integer)->IsEqual(New<TMemberFilter>("", controlClass, integer)));
  EXPECT_FALSE(
      New<TMemberFilter>("Left", controlClass, integer)->IsEqual(New<TMemberFilter>("Left", controlClass, integer)));
  EXPECT_FALSE(New<TMemberFilter>("", nullptr, integer)->IsEqual(New<TMemberFilter>("", controlClass, integer)));
}

} // namespace MemberFilterTesting
} // namespace Tarvo
