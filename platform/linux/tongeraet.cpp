// The sound server is PulseAudio or what speaks its language. Its asynchronous interface runs on
// the main loop of GLib, which is also Qt's: every answer comes on the one thread, between two
// events of the player's.
// Source: the documentation of libpulse, "Asynchronous API", "Playback" and "Buffer attributes".
#include <pulse/glib-mainloop.h>
#include <pulse/pulseaudio.h>
// Qt's keyword `signals` would spoil the headers above.
#include <sndfile.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QPointer>
#include <QStandardPaths>
#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "platform/tongeraet.h"

namespace {

/// The effects are much shorter; a longer file that a player put in their place is cut off.
constexpr sf_count_t kLaengsterKlang = 10;  // seconds

/// How far ahead of the ear the server may work, so that a click is heard when it is made.
constexpr pa_usec_t kVorlauf = 40 * PA_USEC_PER_MSEC;

struct Klang {
  pa_sample_spec format{};
  std::vector<short> werte;

  std::size_t Bytes() const { return werte.size() * sizeof(short); }
};

/// An empty sound if the file cannot be read.
Klang Lies(const QString &pfad) {
  SF_INFO info{};
  const std::unique_ptr<SNDFILE, decltype(&sf_close)> datei(
      sf_open(QFile::encodeName(pfad).constData(), SFM_READ, &info), &sf_close);
  if (!datei)
    return {};
  Klang klang;
  klang.format = {PA_SAMPLE_S16NE, static_cast<std::uint32_t>(info.samplerate),
                  static_cast<std::uint8_t>(info.channels)};
  if (!pa_sample_spec_valid(&klang.format))
    return {};
  const sf_count_t laenge = std::min(info.frames, kLaengsterKlang * info.samplerate);
  klang.werte.resize(static_cast<std::size_t>(laenge * info.channels));
  klang.werte.resize(static_cast<std::size_t>(
      std::max<sf_count_t>(0, sf_readf_short(datei.get(), klang.werte.data(), laenge)) *
      info.channels));
  return klang;
}

/// False if the player has no key for sound servers. libpulse would make one, among the player's
/// own files; a server on this machine does not ask for it.
bool KenntServer() {
  return QFile::exists(QDir::home().filePath(".pulse-cookie")) ||
         !QStandardPaths::locate(QStandardPaths::GenericConfigLocation, "pulse/cookie").isEmpty();
}

class Tonserver final : public Tonmelder {
 public:
  explicit Tonserver(QObject *besitzer)
      : Tonmelder(besitzer), schleife_(pa_glib_mainloop_new(nullptr)) {
    Verbinde();
  }
  ~Tonserver() override {
    Trenne();
    pa_glib_mainloop_free(schleife_);
  }
  Tonserver(const Tonserver &) = delete;
  Tonserver &operator=(const Tonserver &) = delete;

  bool GeraetDa() {
    if (!IstVerbunden())
      Verbinde();
    return geraete_ > 0;
  }

  void Spiele(const QString &pfad) {
    if (!IstVerbunden())
      Verbinde();
    if (pa_context_get_state(verbindung_) == PA_CONTEXT_READY)
      Beginne(Lies(pfad));
    else
      wartend_ = pfad;
  }

 private:
  /// True also while the server has not answered yet.
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
    if (!KenntServer())
      pa_context_load_cookie_from_file(verbindung_, "/dev/zero");
    pa_context_connect(verbindung_, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr);
  }

  void Trenne() {
    if (!verbindung_)
      return;
    Verstumme();
    wartend_.clear();
    pa_context_set_state_callback(verbindung_, nullptr, nullptr);
    pa_context_set_subscribe_callback(verbindung_, nullptr, nullptr);
    pa_context_disconnect(verbindung_);
    pa_context_unref(verbindung_);
    verbindung_ = nullptr;
  }

  void ZustandGewechselt() {
    if (!IstVerbunden()) {
      wartend_.clear();
      MerkeGeraete(0);
    } else if (pa_context_get_state(verbindung_) == PA_CONTEXT_READY) {
      Erledigt(pa_context_subscribe(verbindung_, PA_SUBSCRIPTION_MASK_SINK, nullptr, nullptr));
      ZaehleGeraete();
      if (!wartend_.isEmpty())
        Beginne(Lies(std::exchange(wartend_, {})));
    }
  }

  void ZaehleGeraete() {
    Erledigt(pa_context_get_sink_info_list(
        verbindung_,
        [](pa_context *, const pa_sink_info *, int ende, void *ich) {
          Tonserver &server = Das(ich);
          ++server.gezaehlt_;
          if (ende != 0)  // The last call brings no device.
            server.MerkeGeraete(std::exchange(server.gezaehlt_, 0) - 1);
        },
        this));
  }

  void MerkeGeraete(int anzahl) {
    const bool wechsel = (std::exchange(geraete_, anzahl) > 0) != (anzahl > 0);
    if (wechsel)
      emit Gewechselt();
  }

  void Beginne(Klang klang) {
    Verstumme();
    if (klang.werte.empty())
      return;
    klang_ = std::move(klang);
    strom_ = pa_stream_new(verbindung_, "Klang", &klang_.format, nullptr);
    if (!strom_)
      return;
    pa_stream_set_state_callback(
        strom_, [](pa_stream *strom, void *ich) { Das(ich).Bereit(strom); }, this);
    // The whole effect fits into the server's buffer, so that no busy moment of the game is heard.
    const auto laenge = static_cast<std::uint32_t>(klang_.Bytes());
    const auto vorlauf = static_cast<std::uint32_t>(pa_usec_to_bytes(kVorlauf, &klang_.format));
    const pa_buffer_attr puffer{UINT32_MAX, laenge, 0, (laenge - std::min(laenge, vorlauf)) / 2,
                                UINT32_MAX};
    pa_stream_connect_playback(strom_, nullptr, &puffer, PA_STREAM_NOFLAGS, nullptr, nullptr);
  }

  void Bereit(pa_stream *strom) {
    if (pa_stream_get_state(strom) != PA_STREAM_READY)
      return;
    if (strom != strom_) {  // Cut off before the server had made it.
      pa_stream_disconnect(strom);
      return;
    }
    pa_stream_write(strom_, klang_.werte.data(), klang_.Bytes(), nullptr, 0, PA_SEEK_RELATIVE);
    Erledigt(pa_stream_drain(strom_, nullptr, nullptr));
  }

  void Verstumme() {
    if (!strom_)
      return;
    pa_stream_disconnect(strom_);
    pa_stream_unref(std::exchange(strom_, nullptr));
  }

  static Tonserver &Das(void *ich) { return *static_cast<Tonserver *>(ich); }

  /// What is under way needs no further attention, and may not have been begun at all.
  static void Erledigt(pa_operation *vorgang) {
    if (vorgang)
      pa_operation_unref(vorgang);
  }

  pa_glib_mainloop *schleife_;
  pa_context *verbindung_ = nullptr;
  pa_stream *strom_ = nullptr;  ///< Plays `klang_`.
  Klang klang_;
  QString wartend_;  ///< The last effect that was asked for before the server was ready.
  int geraete_ = 0;
  int gezaehlt_ = 0;
};

Tonserver &DerServer() {
  static QPointer<Tonserver> server;
  if (!server)
    server = new Tonserver(QCoreApplication::instance());
  return *server;
}

}  // namespace

Tonmelder &DerTonmelder() {
  return DerServer();
}

bool SoundGeraetDa() {
  return DerServer().GeraetDa();
}

void SpieleWellendatei(const QString &pfad) {
  DerServer().Spiele(pfad);
}
