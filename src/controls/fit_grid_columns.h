#pragma once

class FlexGrid;

/// Makes each column as wide as its widest text, the title's among them, and 100 twips. Takes little longer than
/// reading the cells: it measures those texts alone that can be wider than the ones before.
void FitGridColumns(FlexGrid* grid);
