#pragma once

class Connection;
class MainWindow;

/// Fills the main window: opens the database as `gConnection`, fills the fixed lists, reads the secondary tax and the
/// price lists, sets up the grids and ends on the invoice history. Once the database is open a statement that fails is
/// skipped. False, after a message, when the database cannot be opened: nothing is stored then.
bool LoadStep(MainWindow& window, Connection& connection);
