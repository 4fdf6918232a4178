#include "tools/sound/SoundTools.hpp"

#include "tools/sound/AppVolumeTool.hpp"
#include "tools/sound/EqualizerTool.hpp"
#include "tools/sound/HeadphoneMicTool.hpp"
#include "tools/sound/MicLockTool.hpp"
#include "tools/sound/MicMuteTool.hpp"
#include "tools/sound/MuteStartupSoundTool.hpp"
#include "tools/sound/OutputLockTool.hpp"
#include "tools/sound/StopMusicTool.hpp"
#include "tools/sound/VolumeHUDTool.hpp"

namespace quorvane {

const ToolFactories& soundTools() {
    static const ToolFactories factories = {
        {"app-volume", &buildTool<AppVolumeTool>},
        {"equalizer", &buildTool<EqualizerTool>},
        {"headphone-mic", &buildTool<HeadphoneMicTool>},
        {"mic-lock", &buildTool<MicLockTool>},
        {"mic-mute", &buildTool<MicMuteTool>},
        {"output-lock", &buildTool<OutputLockTool>},
        {"stop-music", &buildTool<StopMusicTool>},
        {"volume-hud", &buildTool<VolumeHUDTool>},
        {"mute-startup-sound", &buildTool<MuteStartupSoundTool>},
    };
    return factories;
}

}  // namespace quorvane
