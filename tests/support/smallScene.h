#pragma once

namespace ZelTest {

/// A small document with every kind of block: pictures in both byte orders, the document's own
/// mesh, two components, a sun, a layer, texts in several languages, numbers, comments, and a
/// section and elements that nobody knows. Whatever has an identifier has it from here.
inline constexpr const char* kSmallScene = R"(<?xml version="1.0" encoding="UTF-8"?>
<?Zel library="4.5.6" file="4.5" min_version="4.0.0" safe_version="4.5.0"?>
<?Application name="Vendralis" version="4.5"?>
<!-- a scene -->
<Zel.File>
<Preview.Image><![CDATA[0000000100000002000000010000000280112233]]></Preview.Image>
<File.Info UUID="16375F971412CD13DBA7201877541092"><Origin X="1.5" Y="-2.25" Z="3"/></File.Info>
<Images>
<Image UUID="26375F971412CD13DBA7201877541092"><![CDATA[00000001000000020000000200000001FF01020300000003FF040506FF070809FF0A0B0C]]></Image>
<Image UUID="36375F971412CD13DBA7201877541092"><![CDATA[01000000010000000100000001000000FF000000]]></Image>
</Images>
<Points><![CDATA[
3
0.0 0.0 0.0
1.5 -2.25 0.5 4.0 5.0 6.0
]]></Points>
<Polygons><![CDATA[
2
p	0 3 0 1 2
h	1 2 3 M0.5 0.25 0 IM1.0 0.75 1 I2 3 0 1 2
]]></Polygons>
<InternalComponentDefinitions>
<InternalComponentDefinition UUID="BE47E8B0CAAACD0F6FBF214CEB78CD7F"><Geometry.Level>0</Geometry.Level>
<Points><![CDATA[3 0.5 1.5 2.5 1 0 0 nan inf -7.125]]></Points>
<Polygons><![CDATA[1 o 4 3 0 1 2]]></Polygons>
<Object.Definition UUID="BE47E8B0CAAACD0F6FBF214CEB78CD7F" Placement="Vertical" LightGroupID="00000000000000000000000000000000"><Class en="ZelObject"/><Name en="Shed" fr="Abri"/><Anchor X="0" Y="0" Z="0"/><Up X="0" Y="0" Z="1"/><Object.Data/></Object.Definition></InternalComponentDefinition>
<InternalComponentDefinition UUID="CE47E8B0CAAACD0F6FBF214CEB78CD7F"><Geometry.Level>2</Geometry.Level>
<Points><![CDATA[0]]></Points><Polygons><![CDATA[0]]></Polygons></InternalComponentDefinition>
</InternalComponentDefinitions>
<Other kind="a&amp;b"><![CDATA[kept as it is]]>text &#169; &lt;</Other>
<Working.Window/>
<Object.Definition UUID="065CA6C999497F9E3310A5808086FADD" Placement="Vertical" LightGroupID="00000000000000000000000000000000"><Class en="ModelObject"/><Name en="House" de="Haus"/><Anchor X="1" Y="2" Z="3"/><Up X="0" Y="0" Z="1"/><Object.Data/></Object.Definition>
<Heliodons><Heliodon UUID="49E24C0D2A5E4C5F8F0B5C27B5A1C3D7"><Active/><Time><Month>6</Month><Day>21</Day><Hour>12</Hour><Minute>30</Minute><Year>2004</Year></Time><Place><Longitude>140</Longitude><Latitude>482</Latitude><TimeZone>60</TimeZone></Place><Sunshine>0.5</Sunshine><North.Angle>30.25</North.Angle><Shadow.Power>0.75</Shadow.Power><Sun.Blur>5</Sun.Blur><Global.Illumination.Power>0.5</Global.Illumination.Power><Global.Illumination.Quality>0</Global.Illumination.Quality></Heliodon></Heliodons>
<Layers><Layer UUID="5F8C2E11A3B94D07B6E1D2C3F4051627"><Name en="Ground floor"/></Layer></Layers>
<Tmp.Render.Parameters><Config.Name>Draft</Config.Name><Double1>0.125</Double1><Double1.Min>-1.5</Double1.Min>
<Double1.Max>99.75</Double1.Max><BOOL1/><STR1 en="one"/><COLOR1 R="1" G="2" B="3"/></Tmp.Render.Parameters>
</Zel.File>
)";

} // namespace ZelTest
