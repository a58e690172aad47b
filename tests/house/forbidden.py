"""What must not be found in a room: for each folder a few includes, one for each of its walls."""

VIEW_WALLS = ("host/unit/ViewBundle.h", "converter/unit/ConverterUnit.h", "converter/codec/UnitFormat.h",
              "skins/qt/QtView.h", "audio_unit/Mailbox.h", "QWidget", "AppKit/AppKit.h", "unicode/unistr.h",
              "libavcodec/avcodec.h", "unistd.h")
SKIN_WALLS = ("view/keys/KeyBindings.h", "view/main/Velk_AUAACConverterCustomView.h",
              "contract/ConverterInterface.h", "converter/unit/ConverterUnit.h", "host/unit/ViewBundle.h",
              "audio_unit/Mailbox.h", "unicode/unistr.h")
CONVERTER_WALLS = ("ui/Log.h", "view/main/Notifications.h", "skins/qt/QtView.h", "host/files/SoundFile.h",
                   "audio_unit/Mailbox.h", "QString", "sndfile.h", "rtaudio/RtAudio.h")
HOST_WALLS = ("view/factory/Velk_AUAACConverterFactory.h", "view/main/Notifications.h", "skins/qt/QtView.h",
              "programs/measure/Options.h", "converter/unit/AacConverter.h", "converter/codec/Setting.h",
              "converter/stream/Worker.h", "QString", "libavcodec/avcodec.h", "fdk-aac/aacenc_lib.h")
PROGRAM_WALLS = ("view/factory/Velk_AUAACConverterFactory.h", "view/main/Notifications.h", "skins/qt/QtView.h",
                 "converter/unit/AacConverter.h", "converter/codec/Setting.h", "audio_unit/Mailbox.h",
                 "fdk-aac/aacenc_lib.h", "rtaudio/RtAudio.h", "soxr.h")

FORBIDDEN = {
    "audio_unit": ("contract/ConverterInterface.h", "ui/Log.h", "converter/unit/ConverterUnit.h", "QTimer"),
    "contract": ("ui/Log.h", "view/main/Notifications.h", "converter/codec/Setting.h", "audio_unit/Mailbox.h"),
    "realtime": ("audio_unit/RunLoop.h", "contract/ConverterInterface.h", "converter/stream/Worker.h", "ui/Log.h",
                 "QThread", "libavcodec/avcodec.h"),
    "ui": ("audio_unit/RunLoop.h", "contract/ConverterInterface.h", "view/main/Notifications.h",
           "skins/qt/QtView.h", "QWidget", "AppKit/AppKit.h", "unicode/unistr.h"),
    "view/main": VIEW_WALLS,
    "view/factory": VIEW_WALLS,
    "view/encoder_menu": VIEW_WALLS,
    "view/audition": VIEW_WALLS,
    "view/listening_test": VIEW_WALLS,
    "view/keys": VIEW_WALLS,
    "skins/qt": (*SKIN_WALLS, "skins/appkit/AppKitView.h", "AppKit/AppKit.h"),
    "skins/qt/bundle": (*SKIN_WALLS, "skins/appkit/AppKitView.h", "AppKit/AppKit.h"),
    "skins/appkit": (*SKIN_WALLS, "skins/qt/QtView.h", "QWidget"),
    "skins/appkit/bundle": (*SKIN_WALLS, "skins/qt/QtView.h", "QWidget"),
    "converter/codec": (*CONVERTER_WALLS, "converter/transcoder/CodecPair.h", "converter/meters/TruePeakMeter.h",
                        "converter/stream/Worker.h", "converter/unit/AacConverter.h", "soxr.h"),
    "converter/transcoder": (*CONVERTER_WALLS, "converter/meters/TruePeakMeter.h", "converter/stream/Worker.h",
                             "converter/unit/AacConverter.h", "libavcodec/avcodec.h", "fdk-aac/aacenc_lib.h"),
    "converter/meters": (*CONVERTER_WALLS, "converter/codec/Setting.h", "converter/transcoder/CodecPair.h",
                         "converter/stream/Worker.h", "converter/unit/AacConverter.h", "libavcodec/avcodec.h"),
    "converter/stream": (*CONVERTER_WALLS, "converter/unit/AacConverter.h", "libavcodec/avcodec.h", "soxr.h"),
    "converter/unit": (*CONVERTER_WALLS, "libavcodec/avcodec.h", "fdk-aac/aacenc_lib.h", "soxr.h"),
    "host/messages": (*HOST_WALLS, "host/files/SoundFile.h", "host/unit/ViewBundle.h", "audio_unit/Unit.h",
                      "ui/Log.h", "CLI/CLI.hpp", "sndfile.h"),
    "host/files": (*HOST_WALLS, "host/unit/ViewBundle.h", "audio_unit/Unit.h",
                   "converter/unit/ConverterUnit.h", "nlohmann/json.hpp"),
    "host/unit": (*HOST_WALLS, "host/playback/Session.h", "host/analysis/Analysis.h", "audio_unit/Mailbox.h",
                  "sndfile.h"),
    "host/playback": (*HOST_WALLS, "host/analysis/Analysis.h", "audio_unit/Mailbox.h", "nlohmann/json.hpp"),
    "host/analysis": (*HOST_WALLS, "host/playback/Session.h", "audio_unit/Mailbox.h", "sndfile.h"),
    "programs/audition": (*PROGRAM_WALLS, "programs/measure/Options.h", "programs/demo_mix/Score.h", "sndfile.h"),
    "programs/measure": (*PROGRAM_WALLS, "programs/audition/MainWindow.h", "programs/demo_mix/Score.h", "QString"),
    "programs/demo_mix": (*PROGRAM_WALLS, "programs/audition/MainWindow.h", "programs/measure/Options.h", "QString"),
}
