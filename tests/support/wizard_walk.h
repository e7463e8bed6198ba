#pragma once

#include "support/screen.h"

/// Once the wizard comes to this page, lets `visit` fill it, and clicks Next unless the visit has left the page.
template <typename Page>
void AtPage(std::function<void(Page&)> visit = {})
{
    WhenFormShows<Page>([visit = std::move(visit)](Page& page) {
        if (visit)
            visit(page);
        if (page.isVisible())
            Click(page.cmdNext);
    });
}

/// Clicks Next on each of these pages.
template <typename... Pages>
void NextOn()
{
    (AtPage<Pages>(), ...);
}
