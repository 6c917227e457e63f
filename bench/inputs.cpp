#include "bench/inputs.h"

#include "bench/CRow.h"
#include "bench/streams.h"

#include <cmath>
#include <random>
#include <stdexcept>

using OvZel::CZelVertex;

namespace ZelBench {

namespace {

std::size_t side()
{
    return isSmall() ? 100 : 1000;
}

/// What six decimals can tell.
double rounded(double value)
{
    return std::round(value * 1e6) / 1e6;
}

void addPoints(SFlatMesh& mesh)
{
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> jitter(-0.3, 0.3);
    for (std::size_t i = 0; i <= side(); ++i)
        for (std::size_t j = 0; j <= side(); ++j) {
            const double x = static_cast<double>(i), y = static_cast<double>(j);
            mesh.points.push_back({rounded(x + jitter(random)), rounded(y + jitter(random)),
                                   rounded(40.0 * std::sin(x / 50) * std::cos(y / 70))});
        }
}

CZelVertex vertexAt(std::size_t i, std::size_t j, std::size_t number)
{
    CZelVertex vertex;
    vertex.pointIndex = static_cast<std::int32_t>(i * (side() + 1) + j);
    if (number % 3 == 0) {
        vertex.flags = CZelVertex::kFlagM;
        vertex.u = static_cast<float>(i) / static_cast<float>(side());
        vertex.v = static_cast<float>(j) / static_cast<float>(side());
    }
    return vertex;
}

void addLoop(SFlatMesh& mesh, std::initializer_list<CZelVertex> vertices)
{
    mesh.loops.push_back(static_cast<std::uint32_t>(mesh.vertices.size()));
    mesh.vertices.insert(mesh.vertices.end(), vertices);
}

void addQuad(SFlatMesh& mesh, std::size_t i, std::size_t j, char type)
{
    const std::size_t number = mesh.vertices.size();
    const auto loop = static_cast<std::uint32_t>(mesh.loops.size());
    mesh.polygons.push_back({static_cast<std::int32_t>(i % 16), loop, type});
    addLoop(mesh, {vertexAt(i, j, number), vertexAt(i, j + 1, number + 1),
                   vertexAt(i + 1, j + 1, number + 2), vertexAt(i + 1, j, number + 3)});
}

} // namespace

std::size_t nbQuads()
{
    return side() * side();
}

std::size_t nbElements()
{
    return isSmall() ? 10'000 : 1'000'000;
}

SFlatMesh terrain()
{
    SFlatMesh mesh;
    addPoints(mesh);
    for (std::size_t i = 0; i < side(); ++i)
        for (std::size_t j = 0; j < side(); ++j)
            addQuad(mesh, i, j, j % 2 == 0 ? 'o' : 'p');
    return mesh;
}

SFlatMesh perforated()
{
    SFlatMesh mesh;
    for (std::size_t i = 0; i < side() / 2; ++i)
        for (std::size_t j = 0; j < side() / 2; ++j) {
            addQuad(mesh, i, j, 'h');
            for (int hole = 0; hole < 2; ++hole)
                addLoop(mesh, {vertexAt(i, j, 0), vertexAt(i, j + 1, 1), vertexAt(i + 1, j, 2)});
        }
    return mesh;
}

std::string zelFile(const std::string& sections)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<?Zel library=\"6.0.6\" file=\"6.0\" min_version=\"6.0.0\" safe_version=\"6.0.4\"?>\n"
           "<Zel.File>\n" +
           sections + "\t<Working.Window/>\n</Zel.File>\n";
}

static CFlush into(std::string& text)
{
    return [&text](const char* bytes, std::size_t count) { text.append(bytes, count); };
}

std::string pointsSection(const SFlatMesh& mesh)
{
    std::string text = "\t<Points><![CDATA[";
    writePoints(mesh, into(text));
    return text + "]]></Points>\n";
}

std::string polygonsSection(const SFlatMesh& mesh)
{
    std::string text = "\t<Polygons><![CDATA[";
    writePolygons(mesh, into(text));
    return text + "]]></Polygons>\n";
}

std::string_view sectionText(const std::string& file, const std::string& element)
{
    const std::size_t start = file.find("<![CDATA[", file.find('<' + element)) + 9;
    const std::size_t end = file.find("]]>", start);
    if (end == std::string::npos)
        throw std::runtime_error("No section in " + element);
    return std::string_view(file).substr(start, end - start);
}

/// Ten elements of 690 bytes in all.
static std::string material(std::size_t number)
{
    const std::string digits = std::to_string(10'000'000 + number);
    std::string text = "\t\t<Material UUID=\"16375F971412CD13DBA72018" + digits + "\">\n";
    text += "\t\t\t<Name en=\"Brick " + digits + "\" de=\"Ziegel &amp; M&#246;rtel " + digits +
            "\" fr=\"Brique et mortier " + digits + "\"/>\n";
    for (const char* name : {"Diffuse.Color", "Specular.Color", "Emissive.Color"})
        text += std::string("\t\t\t<") + name + " R=\"0." + digits + "\" G=\"0." + digits +
                "\" B=\"0." + digits + "\"/>\n";
    for (const char* name : {"Shininess", "Transparency", "Bump.Height", "Reflection"})
        text += std::string("\t\t\t<") + name + ">0." + digits + "</" + name + ">\n";
    text += "\t\t\t<Texture.File>/home/visitor/Pictures/textures/outside/brick/the street of the "
            "old mill/" +
            digits + "/a wall with much mortar, seen from the street.png</Texture.File>\n";
    return text + "\t\t</Material>\n";
}

std::string elementsFile()
{
    std::string text = "\t<Client.Materials>\n";
    for (std::size_t i = 0; i < nbElements() / 10; ++i)
        text += material(i);
    return zelFile(text + "\t</Client.Materials>\n");
}

std::string terrainFile()
{
    const SFlatMesh mesh = terrain();
    return fileWith("terrain.zel", zelFile(pointsSection(mesh) + polygonsSection(mesh)));
}

} // namespace ZelBench
