// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/CallLog.h"
#include "settings/SettingsDialog.h"
#include "settings/SettingsWindow.h"
#include "surfaces/Dialogs.h"

#include <algorithm>
#include <map>

namespace Quillbox {

/// The settings dialog without widgets. It raises the rules' events as the real one does.
class FakeSettingsWindow : public SettingsWindow {
  public:
    explicit FakeSettingsWindow(CallLog &log)
        : Log_(log) {}

    SettingsDialog *Rules = nullptr;
    std::map<SettingsText, QString> Texts;
    std::map<QString, bool> Checks;
    int Spinner = 1;
    int Item = -1;
    int Style = -1;
    bool StylesEnabled = true;
    Color Sample;
    QString FontCaption;
    FontChoice Font;

    QString Text(SettingsText box) const override {
        const auto found = Texts.find(box);
        return found == Texts.end() ? QString() : found->second;
    }
    void SetText(SettingsText box, const QString &text) override {
        Log_.Add("window.SetText", static_cast<int>(box), text);
        if (Text(box) == text)
            return;
        Texts[box] = text;
        if (box == SettingsText::TabSize)
            Rules->txtTabSize_Change();
    }
    bool IsChecked(const QString &box) const override { return Checks.at(box); }
    void SetChecked(const QString &box, bool checked) override {
        Log_.Add("window.SetChecked", box, checked);
        Checks[box] = checked;
    }
    void SetTabSpinner(int value) override {
        Log_.Add("window.SetTabSpinner", value);
        const int held = std::clamp(value, 1, 255);
        if (held == Spinner)
            return;
        Spinner = held;
        Rules->spnTabSize_Change(held);
    }
    void FocusTabSize() override { Log_.Add("window.FocusTabSize"); }

    int SelectedItem() const override { return Item; }
    void SelectItem(int row) override {
        Log_.Add("window.SelectItem", row);
        if (Item == row)
            return;
        Item = row;
        Rules->lstItems_Click();
    }
    void SelectStyle(int style) override {
        Log_.Add("window.SelectStyle", style);
        const int found = style >= 0 && style < 5 ? style : -1;
        if (found == Style)
            return;
        Style = found;
        if (found >= 0)
            Rules->lstStyles_Click(found);
    }
    void EnableStyles(bool enabled) override {
        Log_.Add("window.EnableStyles", enabled);
        StylesEnabled = enabled;
    }
    void SetSample(Color color) override {
        Log_.Add("window.SetSample", static_cast<int>(color.Value));
        Sample = color;
    }
    void SetFontSample(const QString &caption, const FontChoice &font) override {
        Log_.Add("window.SetFontSample", caption);
        FontCaption = caption;
        Font = font;
    }

    void Hide() override { Log_.Add("window.Hide"); }
    void ShowAgain() override { Log_.Add("window.ShowAgain"); }
    void Unload() override { Log_.Add("window.Unload"); }

  private:
    CallLog &Log_;
};

} // namespace Quillbox
