#include "shell/web_pages.h"

#include "platform/fixed_text.h"
#include "platform/win32.h"

namespace {

constexpr const char* host = "http://tidewright.example";

const char* pathOf(WebPage page) {
    switch (page) {
        case WebPage::help:
            return "/Help/";
        case WebPage::questions:
            return "/faq.html";
        case WebPage::donation:
            return "/donate.html";
    }
    return "/";
}

}  // namespace

void openWebPage(WebPage page) {
    const auto address = joined<FixedText<99>>(host, pathOf(page));
    ShellExecuteA(nullptr, "open", address.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}
