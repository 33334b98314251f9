#pragma once

#include "tests/fakehost/answers.h"
#include "tests/fakehost/fakefiles.h"
#include "tests/fakehost/fakeobjects.h"
#include "tests/fakehost/fakesignalhandler.h"
#include "tests/fakehost/fakesystem.h"
#include "tests/fakehost/fakeweb.h"

namespace fakehost {

/// A host without a window, a network or a disk: everything that the accessors answer, recording what it is
/// asked and failing when it is told to.
struct FakeHost {
    FakeSignalHandler signals;
    FakeWebService web;
    FakeDownloads downloads;
    FakeGraphicsHelper graphics;
    FakeFileSystem files;
    FakeSystem system;
    FakeSystemShell shell;
    FakeCredentialManager credentials;
    FakeFileTypeRegistry fileTypes;
    FakeLocaleManager locale;
    FakePlugInManager objects;

    int calls = 0;                      ///< that may fail
    int failingCall = 0;                ///< the one of them that does, counted from 1; 0: none
    std::string failed;                 ///< its name
    std::set<std::string> failing = {}; ///< the names of those that always do
};

/// The host of the running test.
FakeHost& host();

/// Starts a new one; call it at the beginning of each test, when nothing of the last one is left.
void resetHost();

/// Does something when a subject sends anything.
class Listener final : public xbr::Object<xbr::IObserver> {
public:
    explicit Listener(xbr::ISubject& subject) { XBRGetSignalHandler()->addObserver(&subject, this); }
    ~Listener() override { XBRGetSignalHandler()->forgetObserver(this); }

    void notify(xbr::ISubject*, xbr::IMessage* message) noexcept override {
        if (hook) {
            hook(xbr::toString(message->name()));
        }
    }

    std::function<void(std::string)> hook;
};

} // namespace fakehost
