// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace Quillbox {

enum class NavigationAnswer { Proceed, Cancel };

/// Numbers of the viewer's commands, as it reports changes of their state.
inline constexpr int ForwardCommand = 1;
inline constexpr int BackCommand = 2;

/// What the viewer tells the rules.
struct HelpViewerEvents {
    /// Asked before the viewer goes anywhere but back and forward. `url` is whole and
    /// percent-encoded.
    std::function<NavigationAnswer(const QString &url)> BeforeNavigate;
    std::function<void(int command, bool enabled)> CommandStateChange;
};

/// The help page's viewer.
class HelpViewer {
  public:
    virtual ~HelpViewer() = default;

    virtual void SetEvents(const HelpViewerEvents &events) = 0;
    virtual void Show() = 0;
    /// `page` is a path as stored or typed (see SystemPath), or a web address.
    virtual void Navigate(const QString &page) = 0;
    /// Without an earlier page nothing happens.
    virtual void GoBack() = 0;
    /// Without a later page nothing happens.
    virtual void GoForward() = 0;
    /// Brings the page to the front and gives it the keyboard.
    virtual void SetFocus() = 0;
};

} // namespace Quillbox
