#include "audio/tunes/ogg_file.h"

#include <fmt/format.h>
#include <vorbis/vorbisenc.h>
#include <vorbis/vorbisfile.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "files/whole_file.h"

namespace vandrel::art {

namespace {

constexpr float quality = 0.45F;  // the encoder's scale: 0.4 is quality 4
constexpr int streamNumber = 1;   // usually random; fixed, so that two builds give the same bytes
constexpr std::size_t chunkFrames = 4096;

// The encoder's nest of structures, taken down in the right order.
class Encoder {
  public:
    explicit Encoder(const std::string& title) {
        vorbis_info_init(&info_);
        if (vorbis_encode_init_vbr(&info_, 2, sampleRate, quality) != 0) {
            vorbis_info_clear(&info_);
            throw std::runtime_error("the Vorbis encoder refuses these settings");
        }
        vorbis_comment_init(&remarks_);
        vorbis_comment_add_tag(&remarks_, "TITLE", title.c_str());
        vorbis_analysis_init(&state_, &info_);
        vorbis_block_init(&state_, &block_);
        ogg_stream_init(&stream_, streamNumber);
    }
    Encoder(const Encoder&) = delete;
    Encoder& operator=(const Encoder&) = delete;
    ~Encoder() {
        ogg_stream_clear(&stream_);
        vorbis_block_clear(&block_);
        vorbis_dsp_clear(&state_);
        vorbis_comment_clear(&remarks_);
        vorbis_info_clear(&info_);
    }

    std::string encode(const StereoSignal& signal) {
        writeHeaders();
        for (std::size_t from = 0; from < signal.left.size(); from += chunkFrames) {
            const std::size_t count = std::min(chunkFrames, signal.left.size() - from);
            float** buffer = vorbis_analysis_buffer(&state_, static_cast<int>(count));
            for (std::size_t i = 0; i < count; ++i) {
                buffer[0][i] = static_cast<float>(signal.left[from + i]);
                buffer[1][i] = static_cast<float>(signal.right[from + i]);
            }
            vorbis_analysis_wrote(&state_, static_cast<int>(count));
            writeBlocks();
        }
        vorbis_analysis_wrote(&state_, 0);
        writeBlocks();
        return std::move(bytes_);
    }

  private:
    void writeHeaders() {
        ogg_packet first{};
        ogg_packet remarks{};
        ogg_packet books{};
        vorbis_analysis_headerout(&state_, &remarks_, &first, &remarks, &books);
        for (ogg_packet* packet : {&first, &remarks, &books}) {
            ogg_stream_packetin(&stream_, packet);
        }
        ogg_page page{};
        while (ogg_stream_flush(&stream_, &page) != 0) {
            append(page);
        }
    }

    void writeBlocks() {
        while (vorbis_analysis_blockout(&state_, &block_) == 1) {
            vorbis_analysis(&block_, nullptr);
            vorbis_bitrate_addblock(&block_);
            ogg_packet packet{};
            while (vorbis_bitrate_flushpacket(&state_, &packet) != 0) {
                ogg_stream_packetin(&stream_, &packet);
                ogg_page page{};
                while (ogg_stream_pageout(&stream_, &page) != 0) {
                    append(page);
                }
            }
        }
    }

    void append(const ogg_page& page) {
        bytes_.append(reinterpret_cast<const char*>(page.header), static_cast<std::size_t>(page.header_len));
        bytes_.append(reinterpret_cast<const char*>(page.body), static_cast<std::size_t>(page.body_len));
    }

    vorbis_info info_{};
    vorbis_comment remarks_{};
    vorbis_dsp_state state_{};
    vorbis_block block_{};
    ogg_stream_state stream_{};
    std::string bytes_;
};

}  // namespace

void writeOgg(const std::filesystem::path& path, const StereoSignal& signal, const std::string& title) {
    writeWholeFile(path, Encoder(title).encode(signal));
}

StereoSignal readOgg(const std::filesystem::path& path) {
    OggVorbis_File file;
    if (ov_fopen(path.c_str(), &file) != 0) {
        throw std::runtime_error(fmt::format("{} is not an Ogg Vorbis file", path.string()));
    }
    StereoSignal result;
    const vorbis_info* info = ov_info(&file, -1);
    bool good = info->channels == 2 && info->rate == sampleRate;
    while (good) {
        float** channels = nullptr;
        int section = 0;
        const long count = ov_read_float(&file, &channels, static_cast<int>(chunkFrames), &section);
        if (count == 0) {
            break;
        }
        good = count > 0;
        for (long i = 0; i < count; ++i) {
            result.left.push_back(static_cast<double>(channels[0][i]));
            result.right.push_back(static_cast<double>(channels[1][i]));
        }
    }
    ov_clear(&file);
    if (!good) {
        throw std::runtime_error(fmt::format("{} is not a stereo stream of 44,100 frames a second", path.string()));
    }
    return result;
}

}  // namespace vandrel::art
