// Where a field of TOParam lies and what it holds. The record is packed, so fields are reached by
// copying bytes, never through references. Free of windows.h.
#pragma once

#include <zorvane/TOParam.h>

enum class FieldType
{
    Int32,
    UInt32,
    Byte,
    Char,
    Float,
};

struct ParamField
{
    const char* name;
    size_t offset;
    FieldType type;
};

template <typename T>
constexpr FieldType FieldTypeOf();
template <>
constexpr FieldType FieldTypeOf<int32_t>()
{
    return FieldType::Int32;
}
template <>
constexpr FieldType FieldTypeOf<uint32_t>()
{
    return FieldType::UInt32;
}
template <>
constexpr FieldType FieldTypeOf<uint8_t>()
{
    return FieldType::Byte;
}
template <>
constexpr FieldType FieldTypeOf<char>()
{
    return FieldType::Char;
}
template <>
constexpr FieldType FieldTypeOf<float>()
{
    return FieldType::Float;
}

/// The field of TOParam, or of one TSplitOrder, with this name.
// clang-format off
#define FIELD(field) \
    (ParamField{#field, offsetof(TOParam, field), FieldTypeOf<decltype(TOParam::field)>()})
#define SPLIT_FIELD(field) \
    (ParamField{#field, offsetof(TSplitOrder, field), FieldTypeOf<decltype(TSplitOrder::field)>()})
// clang-format on

/// The field of TOParam that a field of TSplitOrder is in entry `index`, 0 to 4.
ParamField InSplitOrder(int index, const ParamField& field);

/// The value of a whole-number field; a UInt32 above 2147483647 comes out negative. 0 for a Float.
int32_t GetInt(const TOParam& record, const ParamField& field);
/// Stores a whole number, cut to the field's width. A Float field is left alone.
void SetInt(TOParam& record, const ParamField& field, int32_t value);
/// The value of a Float field; 0 for any other.
float GetFloat(const TOParam& record, const ParamField& field);
/// Stores into a Float field; any other is left alone.
void SetFloat(TOParam& record, const ParamField& field, float value);
