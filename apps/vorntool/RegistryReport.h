#pragma once

#include "apps/vorntool/RegistryKeyView.h"
#include "apps/vorntool/core/JsonWriter.h"

namespace vorn::tool
{

/// A value for people: a text as it is, a number in decimal digits, a list with a line for each text (each ended), the
/// bytes of others as hexadecimal digits.
std::string ValueText(const RegistryValue& value);

/// One line of JSON on a value of a key.
std::string JsonOf(const KeyAddress& address, const RegistryValue& value);

/// A key with its values and the names of the keys below it, in lined-up columns.
std::string TextOf(const RegistryKeyContent& content);

/// The same as one element of JSON.
void Write(JsonWriter& json, const RegistryKeyContent& content);

} // namespace vorn::tool
