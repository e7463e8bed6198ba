#pragma once

/// Asks for a file and writes the web orders page into it. A file of that name is deleted first, and stays so when
/// `settings` has no row. Throws RuntimeError when the settings cannot be read and when the page cannot be written
/// whole; neither leaves half a page.
void CreateWebOrdersPage();
