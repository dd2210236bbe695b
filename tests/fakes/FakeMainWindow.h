// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/CallLog.h"
#include "fakes/FakeEditor.h"
#include "surfaces/HelpViewer.h"
#include "surfaces/MainWindow.h"

#include <functional>
#include <memory>
#include <vector>

namespace Quillbox {

class FakeMainWindow : public MainWindow {
  public:
    FakeMainWindow(CallLog &log, FakeDisk &disk)
        : Log_(log)
        , Disk_(disk) {}

    QString Caption;
    QString LogText = QStringLiteral("(nada)");
    std::map<QString, bool> Enabled; ///< commands and, with "tb:" before them, tool buttons
    std::map<QString, bool> Checked;
    std::vector<std::unique_ptr<FakeDocumentWindow>> Windows; ///< in the order of their creation

    void SetCaption(const QString &caption) override {
        Log_.Add("main.SetCaption", caption);
        Caption = caption;
    }
    void EnableCommand(const QString &name, bool enabled) override {
        Log_.Add("main.EnableCommand", name, enabled);
        Enabled[name] = enabled;
    }
    void CheckCommand(const QString &name, bool checked) override {
        Log_.Add("main.CheckCommand", name, checked);
        Checked[name] = checked;
    }
    void EnableToolButtons(const QString &tooltip, bool enabled) override {
        Log_.Add("main.EnableToolButtons", tooltip, enabled);
        Enabled[QStringLiteral("tb:") + tooltip] = enabled;
    }
    void SetLog(const QString &text) override {
        Log_.Add("main.SetLog", text);
        LogText = text;
    }
    DocumentWindow &CreateDocumentWindow() override {
        Log_.Add("main.CreateDocumentWindow");
        Windows.push_back(std::make_unique<FakeDocumentWindow>(Log_, Disk_));
        return *Windows.back();
    }
    void PopUpEditMenu() override { Log_.Add("main.PopUpEditMenu"); }
    void Activate() override { Log_.Add("main.Activate"); }
    void RequestClose() override { Log_.Add("main.RequestClose"); }

  private:
    CallLog &Log_;
    FakeDisk &Disk_;
};

/// A tab strip that raises its click when a tab is selected, as the real one does.
class FakeTabStrip : public TabStrip {
  public:
    explicit FakeTabStrip(CallLog &log)
        : Log_(log) {}

    std::function<void(int tab)> Click = [](int) {};
    std::vector<QString> Captions = {QStringLiteral("Ayuda")};
    int Selected = 1;

    void AddTab(int position, const QString &caption) override {
        Log_.Add("tabs.AddTab", position, caption);
        Captions.insert(Captions.begin() + position - 1, caption);
    }
    void RemoveTab(int position) override {
        Log_.Add("tabs.RemoveTab", position);
        Captions.erase(Captions.begin() + position - 1);
        if (Selected == position)
            Selected = 0;
    }
    void SelectTab(int position) override {
        Log_.Add("tabs.SelectTab", position);
        Selected = position;
        Click(position);
    }
    int SelectedTab() const override { return Selected; }
    void SetTabCaption(int position, const QString &caption) override {
        Log_.Add("tabs.SetTabCaption", position, caption);
        Captions.at(static_cast<std::size_t>(position) - 1) = caption;
    }

  private:
    CallLog &Log_;
};

class FakeNavigationLists : public NavigationLists {
  public:
    explicit FakeNavigationLists(CallLog &log)
        : Log_(log) {}

    std::map<NavigationList, std::vector<QString>> Items;
    std::map<NavigationList, int> Selected = {
        {NavigationList::Functions, -1}, {NavigationList::Labels, -1}, {NavigationList::Types, -1}};

    int ItemCount(NavigationList list) const override {
        const auto found = Items.find(list);
        return found == Items.end() ? 0 : static_cast<int>(found->second.size());
    }
    void AddItem(NavigationList list, const QString &text) override {
        Log_.Add("lists.AddItem", list, text);
        Items[list].push_back(text);
    }
    void RemoveItem(NavigationList list, int item) override {
        Log_.Add("lists.RemoveItem", list, item);
        Items[list].erase(Items[list].begin() + item);
    }
    int SelectedItem(NavigationList list) const override { return Selected.at(list); }

  private:
    CallLog &Log_;
};

class FakeHelpViewer : public HelpViewer {
  public:
    explicit FakeHelpViewer(CallLog &log)
        : Log_(log) {}

    HelpViewerEvents Events;

    void SetEvents(const HelpViewerEvents &events) override { Events = events; }
    void Show() override { Log_.Add("help.Show"); }
    void Navigate(const QString &page) override { Log_.Add("help.Navigate", page); }
    void GoBack() override { Log_.Add("help.GoBack"); }
    void GoForward() override { Log_.Add("help.GoForward"); }
    void SetFocus() override { Log_.Add("help.SetFocus"); }

  private:
    CallLog &Log_;
};

} // namespace Quillbox
