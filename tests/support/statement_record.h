#pragma once

/// Lets the tests of this program write the statements that they ran into the file TAVRIN_STATEMENTS, each shape once
/// and without its values. Does nothing where that is not set.
void RecordStatements();
