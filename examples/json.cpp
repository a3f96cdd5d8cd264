#include "examples/json.h"

#include "json/InputFile.h"
#include "json/JsonReader.h"
#include "json/JsonWriter.h"
#include "text/Output.h"

#include <iostream>

#include <unistd.h>

namespace examples {

using zel::dataformats::data::Value;

std::unique_ptr<Value> readJson(std::string const& path)
{
    auto const file = kiv::openInput(path);
    return kiv::json::readDocument(file.name, file.source).value;
}

void printJson(Value const& value)
{
    std::cout.flush();
    kiv::Output output(STDOUT_FILENO);
    kiv::json::makeWriter(output, kiv::json::Layout::Compact)->document(&value);
    output.flush();
}

} // namespace examples
