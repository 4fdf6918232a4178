#include "tools/system/DefaultAppKind.hpp"

namespace quorvane {

const std::vector<DefaultAppKind>& DefaultAppKind::all() {
    static const std::vector<DefaultAppKind> kinds = {
        {"browser", "Web browser", {"scheme:https", "scheme:http"}},
        {"mail", "Email", {"scheme:mailto"}},
        {"pdf", "PDF documents", {"type:com.adobe.pdf"}},
        {"text", "Plain text", {"type:public.plain-text"}},
        {"markdown", "Markdown", {"type:net.daringfireball.markdown"}},
        {"images", "Pictures", {"type:public.jpeg", "type:public.png", "type:public.heic"}},
        {"video", "Videos", {"type:public.mpeg-4", "type:com.apple.quicktime-movie"}},
        {"audio", "Music and sound", {"type:public.mp3", "type:public.mpeg-4-audio"}},
        {"archives", "ZIP archives", {"type:public.zip-archive"}},
    };
    return kinds;
}

const DefaultAppKind* DefaultAppKind::find(std::string_view key) {
    for (const auto& kind : all()) {
        if (kind.key == key) {
            return &kind;
        }
    }
    return nullptr;
}

}  // namespace quorvane
