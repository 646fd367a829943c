#include "design/editors/AttributeRange.h"

#include "reflection/RangeAttributes.h"

namespace Tarvo {

namespace {

template <class A>
bool AttributeValue(const TRef<IMemberInfo>& AMember, const TValue& (A::*ARead)() const, TValue& AResult) {
  if (const A* attribute = FindMemberAttribute<A>(AMember)) return AResult = (attribute->*ARead)(), true;
  return false;
}

} // namespace

bool AttributeMinValue(const TRef<IMemberInfo>& AMember, TValue& AResult) {
  return AttributeValue(AMember, &DesignMinAttribute::Value, AResult) ||
         AttributeValue(AMember, &DesignRangeAttribute::MinValue, AResult) ||
         AttributeValue(AMember, &MinValueAttribute::Value, AResult) ||
         AttributeValue(AMember, &ValueRangeAttribute::MinValue, AResult);
}

bool AttributeMaxValue(const TRef<IMemberInfo>& AMember, TValue& AResult) {
  return AttributeValue(AMember, &DesignMaxAttribute::Value, AResult) ||
         AttributeValue(AMember, &DesignRangeAttribute::MaxValue, AResult) ||
         AttributeValue(AMember, &MaxValueAttribute::Value, AResult) ||
         AttributeValue(AMember, &ValueRangeAttribute::MaxValue, AResult);
}

} // namespace Tarvo
