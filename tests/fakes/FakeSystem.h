// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/RuntimeError.h"
#include "fakes/CallLog.h"
#include "state/LanguageDefinition.h"
#include "surfaces/ConsoleProcess.h"
#include "surfaces/Dialogs.h"
#include "surfaces/EventLoop.h"
#include "surfaces/Files.h"
#include "surfaces/LanguageRegistration.h"
#include "surfaces/PrivateProfile.h"
#include "surfaces/Programs.h"

#include <deque>
#include <functional>
#include <map>

namespace Quillbox {

/// Answers questions from queues; an empty queue answers with a cancelled chooser or with Ok.
class FakeDialogs : public Dialogs {
  public:
    explicit FakeDialogs(CallLog &log)
        : Log_(log) {}

    std::deque<MessageAnswer> Answers;
    std::deque<std::optional<QString>> Choices;
    std::deque<std::optional<QString>> Inputs;
    std::deque<std::optional<Color>> Colors;
    std::deque<std::optional<FontChoice>> Fonts;
    std::vector<Message> Messages;
    std::vector<InputBox> InputBoxes;
    std::vector<FileChooser> Choosers;

    MessageAnswer ShowMessage(const Message &message) override {
        Log_.Add("dialogs.ShowMessage", message.Text);
        Messages.push_back(message);
        return TakeFirst(Answers, MessageAnswer::Ok);
    }
    std::optional<QString> ShowOpen(const FileChooser &chooser) override {
        Log_.Add("dialogs.ShowOpen", chooser.Filter);
        Choosers.push_back(chooser);
        return TakeFirst(Choices, std::optional<QString>());
    }
    std::optional<QString> ShowSave(const FileChooser &chooser) override {
        Log_.Add("dialogs.ShowSave", chooser.Filter);
        Choosers.push_back(chooser);
        return TakeFirst(Choices, std::optional<QString>());
    }
    std::optional<QString> ShowInput(const InputBox &box) override {
        Log_.Add("dialogs.ShowInput", box.Prompt);
        InputBoxes.push_back(box);
        return TakeFirst(Inputs, std::optional<QString>());
    }
    std::optional<Color> ShowColor(Color preset) override {
        Log_.Add("dialogs.ShowColor", preset.Value);
        return TakeFirst(Colors, std::optional<Color>());
    }
    std::optional<FontChoice> ShowFont(const FontChoice &preset) override {
        Log_.Add("dialogs.ShowFont", preset.Name, static_cast<int>(preset.Size));
        return TakeFirst(Fonts, std::optional<FontChoice>());
    }

  private:
    template <typename Value>
    static Value TakeFirst(std::deque<Value> &queue, Value otherwise) {
        if (queue.empty())
            return otherwise;
        Value first = queue.front();
        queue.pop_front();
        return first;
    }

    CallLog &Log_;
};

class FakeFiles : public Files {
  public:
    explicit FakeFiles(CallLog &log)
        : Log_(log) {}

    std::map<QString, QByteArray> Contents;
    bool WritesFail = false;

    bool CanRead(const QString &path) override {
        Log_.Add("files.CanRead", path);
        return Contents.contains(path);
    }
    std::optional<QByteArray> Read(const QString &path) override {
        Log_.Add("files.Read", path);
        const auto found = Contents.find(path);
        return found == Contents.end() ? std::nullopt : std::optional(found->second);
    }
    bool Write(const QString &path, const QByteArray &content) override {
        Log_.Add("files.Write", path);
        if (WritesFail)
            return false;
        Contents[path] = content;
        return true;
    }

  private:
    CallLog &Log_;
};

/// A settings file in memory that keeps the real one's cut at the capacity.
class FakeProfile : public PrivateProfile {
  public:
    explicit FakeProfile(CallLog &log)
        : Log_(log) {}

    std::map<QString, QString> Values;
    std::vector<KeyValue> Written;
    QString WrittenFile;
    bool WritesFail = false;

    QString ReadString(const QString &section, const QString &key, const QString &defaultValue,
                       int capacity, const QString &file) override {
        Log_.Add("profile.ReadString", section, key, capacity, file);
        const auto found = Values.find(key);
        return (found == Values.end() ? defaultValue : found->second).left(capacity - 1);
    }
    bool WriteStrings(const QString &section, const std::vector<KeyValue> &values,
                      const QString &file) override {
        Log_.Add("profile.WriteStrings", section, file);
        if (WritesFail)
            return false;
        Written = values;
        WrittenFile = file;
        return true;
    }

  private:
    CallLog &Log_;
};

/// A console process that fails where a test says so.
class FakeConsole : public ConsoleProcess {
  public:
    explicit FakeConsole(CallLog &log)
        : Log_(log) {}

    bool PipeFails = false;
    bool ProcessFails = false;
    bool ReadFails = false;
    QByteArray Output;
    int Error = 0;
    std::vector<QString> CommandLines;
    std::function<void()> WhileRunning = [] {};

    std::optional<PipeHandles> CreatePipe(std::size_t size) override {
        Log_.Add("console.CreatePipe", static_cast<int>(size));
        return PipeFails ? std::nullopt : std::optional(PipeHandles{3, 4});
    }
    std::optional<ProcessHandles> StartProcess(const QString &commandLine,
                                               SystemHandle standardOutput) override {
        Log_.Add("console.StartProcess", commandLine, static_cast<int>(standardOutput));
        CommandLines.push_back(commandLine);
        return ProcessFails ? std::nullopt : std::optional(ProcessHandles{1, 2});
    }
    void WaitForProcess(SystemHandle process) override {
        Log_.Add("console.WaitForProcess", static_cast<int>(process));
        WhileRunning();
    }
    std::optional<QByteArray> ReadFile(SystemHandle readEnd, std::size_t capacity) override {
        Log_.Add("console.ReadFile", static_cast<int>(readEnd), static_cast<int>(capacity));
        return ReadFails ? std::nullopt
                         : std::optional(Output.left(static_cast<qsizetype>(capacity)));
    }
    void CloseHandle(SystemHandle handle) override {
        Log_.Add("console.CloseHandle", static_cast<int>(handle));
    }
    int LastError() const override { return Error; }

  private:
    CallLog &Log_;
};

class FakePrograms : public Programs {
  public:
    explicit FakePrograms(CallLog &log)
        : Log_(log) {}

    bool Missing = false;

    void Start(const QString &commandLine, WindowStyle style) override {
        Log_.Add("programs.Start", commandLine, style);
        if (Missing)
            throw FileNotFound();
    }
    void OpenAddress(const QString &address) override {
        Log_.Add("programs.OpenAddress", address);
        if (Missing)
            throw FileNotFound();
    }
    void SetVariable(const QString &name, const QString &value) override {
        Log_.Add("programs.SetVariable", name, value);
    }

  private:
    CallLog &Log_;
};

class FakeEventLoop : public EventLoop {
  public:
    explicit FakeEventLoop(CallLog &log)
        : Log_(log) {}

    bool CtrlDown = false;
    std::function<void()> WhilePumping = [] {};
    std::function<void()> WhileYielding = [] {}; ///< yields are not logged, there are too many

    void ProcessPendingEvents() override {
        Log_.Add("events.ProcessPendingEvents");
        WhilePumping();
    }
    void ProcessWindowEvents() override {
        Log_.Add("events.ProcessWindowEvents");
        WhilePumping();
    }
    void GiveWay() override { WhileYielding(); }
    bool IsCtrlDown() override { return CtrlDown; }

  private:
    CallLog &Log_;
};

class FakeLanguageRegistration : public LanguageRegistration {
  public:
    explicit FakeLanguageRegistration(CallLog &log)
        : Log_(log) {}

    LanguageDefinition Registered;

    void RegisterLanguage(const QString &name, const LanguageDefinition &language) override {
        Log_.Add("languages.RegisterLanguage", name);
        Registered = language;
    }

  private:
    CallLog &Log_;
};

} // namespace Quillbox
