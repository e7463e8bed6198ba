#pragma once

/// Alignment of a cell: left, centre or right, at the top or centred in height.
enum class CellAlign {
    LeftTop = 0,
    LeftCenter = 1,
    CenterTop = 3,
    CenterCenter = 4,
    RightTop = 6,
    RightCenter = 7,
    General = 9
};
