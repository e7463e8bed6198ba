#pragma once

/// Lets screen readers see charts as a table of texts: a row for each category, its label in the first column and its
/// values behind it. Call it before the first chart is shown; further calls do nothing.
void MakeChartsAccessible();
