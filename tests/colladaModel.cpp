#include "tests/colladaModel.h"

#include <charconv>
#include <cmath>

static constexpr const char* kLibraries = R"(<?xml version="1.0"?>
<COLLADA xmlns="http://www.collada.org/2005/11/COLLADASchema" version="1.4.1">
<asset><unit meter="1"/><up_axis>Y_UP</up_axis></asset>
<library_images><image id="img" name="img"><init_from>brick wall.png</init_from></image>
</library_images>
<library_effects>
<effect id="red-fx"><profile_COMMON>
<newparam sid="s"><surface type="2D"><init_from>img</init_from></surface></newparam>
<newparam sid="t"><sampler2D><source>s</source></sampler2D></newparam>
<technique sid="c"><phong>
<diffuse><texture texture="t" texcoord="UV"/></diffuse>
<specular><color>0.2 0.4 0.6 1</color></specular><shininess><float>25</float></shininess>
</phong></technique></profile_COMMON></effect>
<effect id="steel-fx"><profile_COMMON><technique sid="c"><phong>
<diffuse><color>0.4 0.6 0.8 1</color></diffuse>
<transparent opaque="A_ONE"><color>1 1 1 1</color></transparent>
<transparency><float>0.4</float></transparency>
</phong></technique></profile_COMMON></effect>
</library_effects>
<library_materials>
<material id="red" name="Red paint"><instance_effect url="#red-fx"/></material>
<material id="steel" name="Steel"><instance_effect url="#steel-fx"/></material>
</library_materials>
<library_geometries>
<geometry id="tri" name="Triangle"><mesh>
<source id="tp"><float_array id="tpa" count="9">0 0 0 1 0 0 0 2 1</float_array>
<technique_common><accessor source="#tpa" count="3" stride="3"><param name="X" type="float"/>
<param name="Y" type="float"/><param name="Z" type="float"/></accessor></technique_common></source>
<source id="tu"><float_array id="tua" count="6">0 0 0.5 0 0 0.25</float_array>
<technique_common><accessor source="#tua" count="3" stride="2"><param name="S" type="float"/>
<param name="T" type="float"/></accessor></technique_common></source>
<vertices id="tv"><input semantic="POSITION" source="#tp"/></vertices>
<polylist count="1" material="m"><input semantic="VERTEX" source="#tv" offset="0"/>
<input semantic="TEXCOORD" source="#tu" offset="1" set="0"/>
<vcount>3</vcount><p>0 0 1 1 2 2</p></polylist></mesh></geometry>
<geometry id="sq" name="Square"><mesh>
<source id="sp"><float_array id="spa" count="12">0 0 0 1 0 0 1 1 0 0 1 0</float_array>
<technique_common><accessor source="#spa" count="4" stride="3"><param name="X" type="float"/>
<param name="Y" type="float"/><param name="Z" type="float"/></accessor></technique_common></source>
<vertices id="sv"><input semantic="POSITION" source="#sp"/></vertices>
<polylist count="1" material="m"><input semantic="VERTEX" source="#sv" offset="0"/>
<vcount>4</vcount><p>0 1 2 3</p></polylist></mesh></geometry>
<geometry id="big" name="Big"><mesh>
<source id="bp"><float_array id="bpa" count="9">0 0 0 10000 0 0 0 20000 1</float_array>
<technique_common><accessor source="#bpa" count="3" stride="3"><param name="X" type="float"/>
<param name="Y" type="float"/><param name="Z" type="float"/></accessor></technique_common></source>
<vertices id="bv"><input semantic="POSITION" source="#bp"/></vertices>
<polylist count="1" material="m"><input semantic="VERTEX" source="#bv" offset="0"/>
<vcount>3</vcount><p>0 1 2</p></polylist></mesh></geometry>
</library_geometries>
<library_cameras>
<camera id="wide" name="Wide"><optics><technique_common><perspective><xfov>60</xfov>
<znear>0.1</znear><zfar>100</zfar></perspective></technique_common></optics></camera>
<camera id="tall" name="Tall"><optics><technique_common><perspective><yfov>40</yfov>
<aspect_ratio>2</aspect_ratio><znear>0.1</znear><zfar>100</zfar></perspective></technique_common>
</optics></camera>
</library_cameras>
)";

static std::string text(double number)
{
    char digits[32];
    return {digits, std::to_chars(digits, digits + sizeof digits, number).ptr};
}

static std::string startText(const std::string& name, const CMatrix& matrix)
{
    std::string numbers;
    for (const double number : matrix)
        numbers += text(number) + " ";
    return "<node id=\"" + name + "\" name=\"" + name + "\"><matrix>" + numbers + "</matrix>";
}

static std::string nodeText(const CNode& node)
{
    return startText(node.name, node.matrix) + "<instance_geometry url=\"#" + node.mesh +
           "\"><bind_material><technique_common><instance_material symbol=\"m\" target=\"#" +
           node.material + "\"/></technique_common></bind_material></instance_geometry></node>\n";
}

static std::string nodeText(const CCameraNode& node)
{
    return startText(node.name + " stand", node.outer) + startText(node.name, node.matrix) +
           "<instance_camera url=\"#" + node.camera + "\"/></node></node>\n";
}

std::string collada(const std::vector<CNode>& nodes, const std::vector<CCameraNode>& cameras)
{
    std::string all = kLibraries;
    all += "<library_visual_scenes><visual_scene id=\"vs\" name=\"Scene\">\n";
    for (const CNode& node : nodes)
        all += nodeText(node);
    for (const CCameraNode& node : cameras)
        all += nodeText(node);
    return all + "</visual_scene></library_visual_scenes>\n"
                 "<scene><instance_visual_scene url=\"#vs\"/></scene>\n</COLLADA>\n";
}

CMatrix operator*(const CMatrix& a, const CMatrix& b)
{
    CMatrix product(16);
    for (std::size_t i = 0; i < 16; ++i)
        for (std::size_t k = 0; k < 4; ++k)
            product[i] += a[i / 4 * 4 + k] * b[k * 4 + i % 4];
    return product;
}

CMatrix moved(double x, double y, double z)
{
    return {1, 0, 0, x, 0, 1, 0, y, 0, 0, 1, z, 0, 0, 0, 1};
}

CMatrix scaled(double x, double y, double z)
{
    return {x, 0, 0, 0, 0, y, 0, 0, 0, 0, z, 0, 0, 0, 0, 1};
}

CMatrix turnedX(double angle)
{
    return {
        1, 0, 0, 0, 0, std::cos(angle), -std::sin(angle), 0, 0, std::sin(angle), std::cos(angle),
        0, 0, 0, 0, 1};
}

CMatrix turnedY(double angle)
{
    return {std::cos(angle),  0, std::sin(angle), 0, 0, 1, 0, 0,
            -std::sin(angle), 0, std::cos(angle), 0, 0, 0, 0, 1};
}

CMatrix turnedZ(double angle)
{
    return {std::cos(angle),
            -std::sin(angle),
            0,
            0,
            std::sin(angle),
            std::cos(angle),
            0,
            0,
            0,
            0,
            1,
            0,
            0,
            0,
            0,
            1};
}
