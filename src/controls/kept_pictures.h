#pragma once

class QStyle;

/// The program's style, for controls that are painted with each scan: it keeps the pictures of text box frames and of
/// scroll bars, whose round corners and gradients take longer than all the texts. They look as ever. One for all
/// controls; it lives as long as the application.
QStyle* StyleWithKeptPictures();
