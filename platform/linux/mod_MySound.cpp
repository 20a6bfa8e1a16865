// Sound through libpulse, the library of PulseAudio and PipeWire. Its asynchronous interface runs
// on the main loop of GLib, which is also Qt's event loop, so callbacks come on the one thread.
// Source: the documentation of libpulse, "Asynchronous API", "Playback" and "Buffer attributes".
#include <pulse/glib-mainloop.h>
#include <pulse/pulseaudio.h>
// Qt defines `signals` as a macro, which breaks the headers above if it comes first.
#include <sndfile.h>

#include <QCoreApplication>
#include <QFile>
#include <QPointer>
#include <algorithm>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "platform/mod_MySound.h"

namespace {

/// A longer file is cut off. The effects of the game are much shorter.
constexpr sf_count_t kLaengsterSound = 10;  // seconds

/// Playback latency. The sound of a click must not lag behind it.
constexpr pa_usec_t kVorlauf = 40 * PA_USEC_PER_MSEC;

struct Sound {
  pa_sample_spec Format{};
  std::vector<short> Werte;

  std::size_t Bytes() const { return Werte.size() * sizeof(short); }
};

/// An empty sound if the file cannot be read.
Sound Lies(const QString &pfad) {
  SF_INFO info{};
  const std::unique_ptr<SNDFILE, decltype(&sf_close)> datei(
      sf_open(QFile::encodeName(pfad).constData(), SFM_READ, &info), &sf_close);
  if (!datei)
    return {};
  Sound sound;
  sound.Format = {PA_SAMPLE_S16NE, static_cast<std::uint32_t>(info.samplerate),
                  static_cast<std::uint8_t>(info.channels)};
  if (!pa_sample_spec_valid(&sound.Format))
    return {};
  const sf_count_t laenge = std::min(info.frames, kLaengsterSound * info.samplerate);
  sound.Werte.resize(static_cast<std::size_t>(laenge * info.channels));
  sound.Werte.resize(static_cast<std::size_t>(
      std::max<sf_count_t>(0, sf_readf_short(datei.get(), sound.Werte.data(), laenge)) *
      info.channels));
  return sound;
}

/// The connection to the sound server.
class Soundserver final : public Soundgeraet {
 public:
  explicit Soundserver(QObject *besitzer) : schleife_(pa_glib_mainloop_new(nullptr)) {
    setParent(besitzer);
    Verbinde();
  }
  ~Soundserver() override {
    Trenne();
    pa_glib_mainloop_free(schleife_);
  }
  Soundserver(const Soundserver &) = delete;
  Soundserver &operator=(const Soundserver &) = delete;

  bool SoundGeraetDa() override {
    if (!IstVerbunden())
      Verbinde();
    return geraete_ > 0;
  }

  void SpieleSound(int n) override {
    if (!IstVerbunden())
      Verbinde();
    if (!sounds_.contains(n))
      sounds_[n] = Lies(Sounddatei(n));
    wartend_ = &sounds_[n];
    if (pa_context_get_state(verbindung_) == PA_CONTEXT_READY)
      Beginne();
  }

 private:
  /// Also true while the connection is being made.
  bool IstVerbunden() const { return PA_CONTEXT_IS_GOOD(pa_context_get_state(verbindung_)); }

  void Verbinde() {
    Trenne();
    verbindung_ = pa_context_new(pa_glib_mainloop_get_api(schleife_), "Glanzgrube");
    pa_context_set_state_callback(
        verbindung_, [](pa_context *, void *ich) { Das(ich).ZustandGewechselt(); }, this);
    pa_context_set_subscribe_callback(
        verbindung_,
        [](pa_context *, pa_subscription_event_type_t, std::uint32_t, void *ich) {
          Das(ich).ZaehleGeraete();
        },
        this);
    pa_context_connect(verbindung_, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr);
  }

  void Trenne() {
    if (!verbindung_)
      return;
    Verstumme();
    wartend_ = nullptr;
    pa_context_set_state_callback(verbindung_, nullptr, nullptr);
    pa_context_set_subscribe_callback(verbindung_, nullptr, nullptr);
    pa_context_disconnect(verbindung_);
    pa_context_unref(verbindung_);
    verbindung_ = nullptr;
  }

  void ZustandGewechselt() {
    if (!IstVerbunden()) {
      wartend_ = nullptr;
      MerkeGeraete(0);
    } else if (pa_context_get_state(verbindung_) == PA_CONTEXT_READY) {
      Erledigt(pa_context_subscribe(verbindung_, PA_SUBSCRIPTION_MASK_SINK, nullptr, nullptr));
      ZaehleGeraete();
      Beginne();
    }
  }

  void ZaehleGeraete() {
    Erledigt(pa_context_get_sink_info_list(
        verbindung_,
        [](pa_context *, const pa_sink_info *, int ende, void *ich) {
          Soundserver &server = Das(ich);
          ++server.gezaehlt_;
          if (ende != 0)  // The last call of a list carries no device.
            server.MerkeGeraete(std::exchange(server.gezaehlt_, 0) - 1);
        },
        this));
  }

  void MerkeGeraete(int anzahl) {
    const bool wechsel = (std::exchange(geraete_, anzahl) > 0) != (anzahl > 0);
    if (wechsel)
      emit Gewechselt();
  }

  /// Plays the effect that waits, if any.
  void Beginne() {
    Verstumme();
    sound_ = std::exchange(wartend_, nullptr);
    if (!sound_ || sound_->Werte.empty())
      return;
    strom_ = pa_stream_new(verbindung_, "Sound", &sound_->Format, nullptr);
    if (!strom_)
      return;
    pa_stream_set_state_callback(
        strom_, [](pa_stream *strom, void *ich) { Das(ich).Bereit(strom); }, this);
    // The server's buffer holds the whole effect, so the sound has no gaps while the game is busy.
    const auto laenge = static_cast<std::uint32_t>(sound_->Bytes());
    const auto vorlauf = static_cast<std::uint32_t>(pa_usec_to_bytes(kVorlauf, &sound_->Format));
    // It begins with the first value: a stream that does not wait plays silence until then, and
    // drops as much of the effect.
    const auto anfang = static_cast<std::uint32_t>(pa_frame_size(&sound_->Format));
    const pa_buffer_attr puffer{UINT32_MAX, laenge, anfang,
                                (laenge - std::min(laenge, vorlauf)) / 2, UINT32_MAX};
    pa_stream_connect_playback(strom_, nullptr, &puffer, PA_STREAM_NOFLAGS, nullptr, nullptr);
  }

  void Bereit(pa_stream *strom) {
    if (pa_stream_get_state(strom) != PA_STREAM_READY)
      return;
    if (strom != strom_) {  // A later effect has replaced it.
      pa_stream_disconnect(strom);
      return;
    }
    pa_stream_write(strom_, sound_->Werte.data(), sound_->Bytes(), nullptr, 0, PA_SEEK_RELATIVE);
    Erledigt(pa_stream_drain(strom_, nullptr, nullptr));
  }

  void Verstumme() {
    if (!strom_)
      return;
    pa_stream_disconnect(strom_);
    pa_stream_unref(std::exchange(strom_, nullptr));
  }

  static Soundserver &Das(void *ich) { return *static_cast<Soundserver *>(ich); }

  /// Lets an operation run on without its result. It is null if it could not be started.
  static void Erledigt(pa_operation *vorgang) {
    if (vorgang)
      pa_operation_unref(vorgang);
  }

  pa_glib_mainloop *schleife_;
  pa_context *verbindung_ = nullptr;
  pa_stream *strom_ = nullptr;   ///< Plays `sound_`.
  std::map<int, Sound> sounds_;  ///< By number, loaded at their first use.
  const Sound *sound_ = nullptr;
  const Sound *wartend_ = nullptr;  ///< The effect requested last, until the connection is ready.
  int geraete_ = 0;                 ///< Devices, as the server last reported.
  int gezaehlt_ = 0;                ///< Callbacks of the list of devices so far.
};

}  // namespace

Soundgeraet &DasSoundgeraet() {
  static QPointer<Soundserver> server;
  if (!server)
    server = new Soundserver(QCoreApplication::instance());
  return *server;
}
