#include "bench/SPlainInstance.h"

#include <charconv>
#include <cstring>
#include <pugixml.hpp>
#include <stdexcept>

namespace ZelBench {

namespace {

constexpr const char* kVectors[] = {
    "Normal",    "Translation",           "Rotation", "Scale", "Anchor.Position",
    "Up.Vector", "Current.Path.Direction"};
constexpr const char* kNumbers[] = {"Triangle.Id", "Initial.Angle", "UIValue", "Transparency"};
constexpr const char* kAxes[] = {"X", "Y", "Z"};
constexpr const char* kCorners[] = {"Min.Point", "Max.Point"};

double number(const char* text)
{
    double value = 0.0;
    std::from_chars(text, text + std::strlen(text), value);
    return value;
}

std::string text(double value)
{
    char digits[64];
    return {digits,
            std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed, 6).ptr};
}

void readVector(pugi::xml_node element, std::vector<double>& numbers)
{
    for (const char* axis : kAxes)
        numbers.push_back(number(element.attribute(axis).value()));
}

const double* writeVector(pugi::xml_node element, const double* numbers)
{
    for (const char* axis : kAxes)
        element.append_attribute(axis).set_value(text(*numbers++).c_str());
    return numbers;
}

SPlainInstance readOne(pugi::xml_node element)
{
    SPlainInstance instance;
    instance.name = element.child("Name").attribute("en").value();
    instance.type = element.child("Class").attribute("en").value();
    instance.id = element.attribute("Id").value();
    instance.attachId = element.attribute("Attach.Id").value();
    instance.layerId = element.attribute("Layer.Id").value();
    instance.overloadId = element.attribute("Overload.Id").value();
    instance.component = element.child("Instance.Data").attribute("Component.UUID").value();
    instance.isVisible = element.child("Visible");
    for (const char* name : kVectors)
        readVector(element.child(name), instance.numbers);
    for (const char* name : kCorners)
        readVector(element.child("Bounding.Box").child(name), instance.numbers);
    for (const char* name : kNumbers)
        instance.numbers.push_back(number(element.child_value(name)));
    return instance;
}

void writeOne(pugi::xml_node element, const SPlainInstance& instance)
{
    element.append_attribute("Id").set_value(instance.id.c_str());
    element.append_attribute("Attach.Id").set_value(instance.attachId.c_str());
    element.append_attribute("Layer.Id").set_value(instance.layerId.c_str());
    element.append_attribute("Overload.Id").set_value(instance.overloadId.c_str());
    element.append_child("Name").append_attribute("en").set_value(instance.name.c_str());
    element.append_child("Class").append_attribute("en").set_value(instance.type.c_str());
    const double* numbers = instance.numbers.data();
    for (const char* name : kVectors)
        numbers = writeVector(element.append_child(name), numbers);
    pugi::xml_node box = element.append_child("Bounding.Box");
    for (const char* name : kCorners)
        numbers = writeVector(box.append_child(name), numbers);
    for (const char* name : kNumbers)
        element.append_child(name).text().set(text(*numbers++).c_str());
    if (instance.isVisible)
        element.append_child("Visible");
    element.append_child("Properties");
    pugi::xml_node data = element.append_child("Instance.Data");
    data.append_attribute("Component.UUID").set_value(instance.component.c_str());
    data.append_child("Properties");
}

} // namespace

std::vector<SPlainInstance> readInstances(const std::string& path)
{
    pugi::xml_document file;
    if (!file.load_file(path.c_str()))
        throw std::runtime_error("The plain program can't read the instances");
    std::vector<SPlainInstance> instances;
    for (pugi::xml_node element : file.child("Zel.File").child("Object.Instances").children())
        instances.push_back(readOne(element));
    return instances;
}

void writeInstances(const std::vector<SPlainInstance>& instances, const std::string& path)
{
    pugi::xml_document file;
    pugi::xml_node list = file.append_child("Zel.File").append_child("Object.Instances");
    for (const SPlainInstance& instance : instances)
        writeOne(list.append_child("Object.Instance"), instance);
    if (!file.save_file(path.c_str(), "\t"))
        throw std::runtime_error("The plain program can't write the instances");
}

} // namespace ZelBench
