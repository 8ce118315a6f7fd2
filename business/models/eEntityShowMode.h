#pragma once

/// What the expression builder's lists show of an entity or a variable. Any other number shows nothing.
enum eEntityShowMode : int {
    ShowName = 0,
    ShowLabel = 1,
    ShowNameAndLabel = 2,
};
