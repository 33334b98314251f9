#include "tests/fakehost/fakeobjects.h"

#include "tests/fakehost/fakehost.h"

namespace fakehost {

namespace {

FakePlugInManager& objects() {
    return host().objects;
}

class FakeView final : public xbr::Object<xbr::IView> {
public:
    FakeView(std::string form, xbr::IController* controller)
        : m_form(std::move(form)),
          m_controller(xbr::Ref<xbr::IController>::share(controller)) {}
    xbr::Text formName() const noexcept override { return m_texts.lend(m_form); }
    xbr::IController* controller() noexcept override { return m_controller.get(); }

private:
    std::string m_form;
    xbr::Ref<xbr::IController> m_controller;
    Lender m_texts;
};

class FakeTheme final : public xbr::Object<xbr::ITheme> {
public:
    xbr::Result load(xbr::Text folder) noexcept override {
        objects().log.push_back("theme " + xbr::toString(folder));
        return okUnlessItFails();
    }
    bool hasForm(xbr::Text) const noexcept override { return true; }
    xbr::Result createView(xbr::Text form, xbr::IController* controller, xbr::IView** out) noexcept override {
        return giveUnlessItFails(xbr::make<FakeView>(xbr::toString(form), controller), out);
    }
};

/// Runs until it is closed: `onModalRun` is the event loop.
class FakeDialog final : public xbr::Object<xbr::IDialog> {
public:
    xbr::Result setTheme(xbr::ITheme* theme) noexcept override {
        m_hasTheme = theme != nullptr;
        return xbr::kOk;
    }
    xbr::Result setTranslationTable(xbr::ITranslationTable* table) noexcept override {
        m_hasTable = table != nullptr;
        return xbr::kOk;
    }
    xbr::Result runModal(xbr::IView* view, std::int32_t styleFlags) noexcept override {
        objects().log.push_back("run " + xbr::toString(view->formName()) + " " + std::to_string(styleFlags) +
                                (m_hasTheme && m_hasTable ? "" : " without skin or translation"));
        if (const auto act = objects().onModalRun) {
            act();
        }
        return xbr::kOk;
    }
    xbr::Result close() noexcept override {
        objects().log.emplace_back("close");
        return xbr::kOk;
    }

private:
    bool m_hasTheme = false;
    bool m_hasTable = false;
};

class FakeFileSelector final : public xbr::Object<xbr::IFileSelector> {
public:
    xbr::Result addFilter(xbr::IFileType* type) noexcept override {
        const std::string mimeType = xbr::toString(type->mimeType());
        objects().log.push_back("filter " + xbr::toString(type->extension()) +
                                (mimeType.empty() ? "" : " " + mimeType));
        return xbr::kOk;
    }
    xbr::Result run(Mode mode, xbr::Text title) noexcept override {
        objects().log.push_back("choose " + std::to_string(static_cast<int>(mode)) + xbr::toString(title));
        return objects().chosenFiles.empty() ? xbr::kFalse : xbr::kOk;
    }
    std::int32_t countUrls() const noexcept override {
        return static_cast<std::int32_t>(objects().chosenFiles.size());
    }
    xbr::Text urlAt(std::int32_t index) const noexcept override {
        return m_texts.lend(objects().chosenFiles[static_cast<std::size_t>(index)]);
    }

private:
    Lender m_texts;
};

class FakeProgressIndicator final : public xbr::Object<xbr::IProgressIndicator, xbr::IProgress> {
public:
    void setTitle(xbr::Text title) noexcept override {
        objects().log.push_back("title " + xbr::toString(title));
    }
    void setOption(std::int32_t option) noexcept override {
        objects().log.push_back("option " + std::to_string(option));
    }
    void begin() noexcept override { objects().log.emplace_back("begin"); }
    void end() noexcept override { objects().log.emplace_back("end"); }
    void update(double, xbr::Text) noexcept override {
        if (const auto act = objects().onProgressUpdate) { // which may put another in its place
            act();
        }
    }
    bool isCancelled() noexcept override { return objects().cancelled; }
};

class FakeConfigurationStore final : public xbr::Object<xbr::IConfigurationStore> {
public:
    xbr::Result load(xbr::IAttributes* out, xbr::Text id, xbr::Text title, std::int32_t profile,
                     std::int32_t mode) noexcept override {
        objects().log.push_back("load " + xbr::toString(id) + " " + xbr::toString(title) + " " +
                                std::to_string(profile) + " " + std::to_string(mode));
        for (const auto& [key, value] : objects().configuration) {
            out->set(xbr::toText(key), xbr::textValue(value));
        }
        return okUnlessItFails();
    }
};

class FakeMediaFileInfo final : public xbr::Object<xbr::IMediaFileInfo> {
public:
    xbr::Result open(xbr::Text url) noexcept override {
        m_url = xbr::view(url);
        return objects().tags.contains(m_url) ? xbr::kOk : xbr::kUnexpected;
    }
    xbr::Result getAttributes(xbr::IAttributes* out) noexcept override {
        for (const auto& [key, value] : objects().tags[m_url]) {
            out->set(xbr::toText(key), xbr::textValue(value));
        }
        return xbr::kOk;
    }

private:
    std::string m_url;
};

class FakeJoinTokenPermission final : public xbr::Object<xbr::IJoinTokenPermission> {
public:
    bool isAllowed() noexcept override { return *objects().joinTokenAllowed; }
};

template <class T>
xbr::Result create(const xbr::Uid& interfaceUid, void** out) {
    return xbr::make<T>()->queryInterface(interfaceUid, out);
}

} // namespace

xbr::Result FakePlugInManager::createInstance(const xbr::Uid& classUid, const xbr::Uid& interfaceUid,
                                              void** out) noexcept {
    using Creator = xbr::Result (*)(const xbr::Uid&, void**);
    static const std::pair<xbr::Uid, Creator> kCreators[] = {
        {xbr::ITheme::kClassUid, create<FakeTheme>},
        {xbr::IDialog::kClassUid, create<FakeDialog>},
        {xbr::IFileSelector::kClassUid, create<FakeFileSelector>},
        {xbr::IProgressIndicator::kClassUid, create<FakeProgressIndicator>},
        {xbr::IConfigurationStore::kClassUid, create<FakeConfigurationStore>},
        {xbr::IMediaFileInfo::kClassUid, create<FakeMediaFileInfo>},
        {xbr::IJoinTokenPermission::kClassUid, create<FakeJoinTokenPermission>},
    };
    *out = nullptr;
    if (fails()) {
        return xbr::kUnexpected;
    }
    for (const auto& [uid, creator] : kCreators) {
        const bool isThere = uid != xbr::IJoinTokenPermission::kClassUid || joinTokenAllowed.has_value();
        if (uid == classUid && isThere) {
            return creator(interfaceUid, out);
        }
    }
    return xbr::kNoInterface;
}

} // namespace fakehost
