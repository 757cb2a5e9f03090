#include "core/ParamField.h"

#include <cstring>

namespace
{

template <typename T>
T Load(const TOParam& record, const ParamField& field)
{
    T value;
    memcpy(&value, reinterpret_cast<const char*>(&record) + field.offset, sizeof(value));
    return value;
}

template <typename T>
void Store(TOParam& record, const ParamField& field, T value)
{
    memcpy(reinterpret_cast<char*>(&record) + field.offset, &value, sizeof(value));
}

} // namespace

ParamField InSplitOrder(int index, const ParamField& field)
{
    return {field.name, offsetof(TOParam, SplitOrder) + index * sizeof(TSplitOrder) + field.offset,
            field.type};
}

int32_t GetInt(const TOParam& record, const ParamField& field)
{
    switch (field.type)
    {
    case FieldType::Int32:
        return Load<int32_t>(record, field);
    case FieldType::UInt32:
        return static_cast<int32_t>(Load<uint32_t>(record, field));
    case FieldType::Byte:
        return Load<uint8_t>(record, field);
    case FieldType::Char:
        return Load<signed char>(record, field);
    case FieldType::Float:
        break;
    }
    return 0;
}

void SetInt(TOParam& record, const ParamField& field, int32_t value)
{
    switch (field.type)
    {
    case FieldType::Int32:
    case FieldType::UInt32:
        return Store(record, field, value);
    case FieldType::Byte:
    case FieldType::Char:
        return Store(record, field, static_cast<uint8_t>(value));
    case FieldType::Float:
        break;
    }
}

float GetFloat(const TOParam& record, const ParamField& field)
{
    return field.type == FieldType::Float ? Load<float>(record, field) : 0.0f;
}

void SetFloat(TOParam& record, const ParamField& field, float value)
{
    if (field.type == FieldType::Float)
        Store(record, field, value);
}
