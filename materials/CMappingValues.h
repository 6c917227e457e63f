#pragma once

#include "core/generateId.h"

#include <zel/CZelColor.h>
#include <zel/CZelPoint.h>
#include <zel/CZelUUID.h>

#include <cstdint>

namespace OvZel {

/// The plain values of a mapping node, which a copy takes as one.
struct CMappingValues {
    CZelPoint normal{0.0, 0.0, -1.0};
    CZelPoint origin;
    CZelPoint xAxis{-1.0, 0.0, 0.0};
    CZelPoint yAxis{0.0, -1.0, 0.0};
    double angle = 0.0;
    double height = 1.0;
    double width = 1.0;
    double bump = 0.0;
    double relief = 0.0;
    double xCenter = 0.5;
    double yCenter = 0.5;
    double xDelta = 0.0;
    double yDelta = 0.0;
    double glossy = 1000.0;
    bool xRepeat = false;
    bool yRepeat = false;
    CZelColor specular;
    CZelColor transparent;
    CZelColor reflection;
    double reflectionLimit = 0.0;
    bool cutSet = false;
    bool cutOut1Flag = false;
    CZelColor cutOut1Color;
    bool cutOut2Flag = false;
    CZelColor cutOut2Color;
    bool xInvert = false;
    bool yInvert = false;
    std::int32_t projection = 5;
    bool visible = true;
    bool mixFlag = false;
    CZelColor mixColor = CZelColor::rgb(127, 127, 127);
    double mixValue = 0.0;
    bool cutAlpha = false;
    bool xMirror = false;
    bool yMirror = false;
    bool alphaBump = false;
    bool alphaTransparency = false;
    bool mipmap = false;
    bool trilinearFilter = false;
    bool displayMode = false;
    double brightness = 0.0;
    double contrast = 1.0;
    std::int32_t frame = 0;
    std::int32_t movieLength = 0;
    double normalMap = 0.0;
    CZelUUID mappingNodeId = generateId();
    CZelUUID parentMappingNodeId;
    bool glossyActivated = false;
};

} // namespace OvZel
