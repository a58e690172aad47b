<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>StatusText</name>
    <message>
        <source>%1 mode %2</source>
        <translation>%1 Modus %2</translation>
    </message>
    <message>
        <source>%1 %2 kbit/s</source>
        <translation>%1 %2 kbit/s</translation>
    </message>
    <message>
        <source>Listening test</source>
        <translation>Hörtest</translation>
    </message>
    <message>
        <source>really %1 kbit/s</source>
        <translation>wirklich %1 kbit/s</translation>
    </message>
    <message>
        <source>latency %1 ms</source>
        <translation>Latenz %1 ms</translation>
    </message>
</context>
<context>
    <name>host::app::AnalysisIndicator</name>
    <message>
        <source>Reading: %1 %</source>
        <translation>Lesen: %1 %</translation>
    </message>
    <message>
        <source>Analysing: %1 %</source>
        <translation>Analyse: %1 %</translation>
    </message>
    <message>
        <source>Encoded: no overs</source>
        <translation>Codiert: keine Overs</translation>
    </message>
    <message>
        <source>Encoded overs: %1</source>
        <translation>Codiert: %1 Overs</translation>
    </message>
    <message>
        <source>Analysis stopped</source>
        <translation>Analyse angehalten</translation>
    </message>
    <message>
        <source>Analysis failed</source>
        <translation>Analyse gescheitert</translation>
    </message>
    <message>
        <source>Analyse again</source>
        <translation>Erneut analysieren</translation>
    </message>
    <message>
        <source>Stop the analysis</source>
        <translation>Analyse anhalten</translation>
    </message>
</context>
<context>
    <name>host::app::Audition</name>
    <message>
        <source>%1 kHz, played as %2 kHz</source>
        <translation>%1 kHz, gespielt mit %2 kHz</translation>
    </message>
    <message>
        <source>%1 – AAC Audition</source>
        <translation>%1 – AAC Audition</translation>
    </message>
    <message>
        <source>Silent: %1</source>
        <translation>Stumm: %1</translation>
    </message>
    <message>
        <source>No device</source>
        <translation>Kein Gerät</translation>
    </message>
    <message>
        <source>Silent: the device %1</source>
        <translation>Stumm: Gerät %1</translation>
    </message>
    <message>
        <source>The file cannot be read fast enough</source>
        <translation>Die Datei lässt sich nicht schnell genug lesen</translation>
    </message>
    <message>
        <source>The encoder cannot keep up</source>
        <translation>Der Encoder kommt nicht mit</translation>
    </message>
    <message>
        <source>The file is damaged or cut off</source>
        <translation>Die Datei ist beschädigt oder abgeschnitten</translation>
    </message>
    <message>
        <source>The recording has failed</source>
        <translation>Die Aufnahme ist gescheitert</translation>
    </message>
</context>
<context>
    <name>host::app::ChannelDialog</name>
    <message>
        <source>Choose Channels</source>
        <translation>Kanäle wählen</translation>
    </message>
    <message>
        <source>“%1” has %2 channels, and an AAC stream of this kind takes one or two. Which ones do you want to hear?</source>
        <translation>„%1“ hat %2 Kanäle, ein AAC-Strom dieser Art fasst einen oder zwei. Welche möchten Sie hören?</translation>
    </message>
    <message>
        <source>Channel %1</source>
        <translation>Kanal %1</translation>
    </message>
    <message>
        <source>None (mono)</source>
        <translation>Keiner (mono)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Links:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Rechts:</translation>
    </message>
</context>
<context>
    <name>host::app::DeviceMenu</name>
    <message>
        <source>No Device (silent)</source>
        <translation>Kein Gerät (stumm)</translation>
    </message>
    <message>
        <source>Looking for devices…</source>
        <translation>Geräte werden gesucht …</translation>
    </message>
</context>
<context>
    <name>host::app::FileOpening</name>
    <message>
        <source>Open Sound File</source>
        <translation>Tondatei öffnen</translation>
    </message>
    <message>
        <source>Sound files (*.wav *.wave *.aif *.aiff *.aifc *.flac *.ogg *.oga *.opus *.mp3 *.w64 *.rf64 *.caf *.au);;All files (*)</source>
        <translation>Tondateien (*.wav *.wave *.aif *.aiff *.aifc *.flac *.ogg *.oga *.opus *.mp3 *.w64 *.rf64 *.caf *.au);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>AAC Audition</source>
        <translation>AAC Audition</translation>
    </message>
    <message>
        <source>The file cannot be played.</source>
        <translation>Die Datei kann nicht gespielt werden.</translation>
    </message>
    <message>
        <source>No Files</source>
        <translation>Keine Dateien</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
</context>
<context>
    <name>host::app::MainWindow</name>
    <message>
        <source>Open a sound file, or drop one here</source>
        <translation>Öffnen Sie eine Tondatei oder legen Sie eine hier ab</translation>
    </message>
    <message>
        <source>AAC Audition</source>
        <translation>AAC Audition</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>&amp;Play or Pause</source>
        <translation>&amp;Wiedergabe oder Pause</translation>
    </message>
    <message>
        <source>To the &amp;Beginning</source>
        <translation>Zum &amp;Anfang</translation>
    </message>
    <message>
        <source>Five Seconds Ba&amp;ck</source>
        <translation>Fünf Sekunden &amp;zurück</translation>
    </message>
    <message>
        <source>Five Seconds &amp;Forward</source>
        <translation>Fünf Sekunden &amp;vor</translation>
    </message>
    <message>
        <source>&amp;Loop</source>
        <translation>S&amp;chleife</translation>
    </message>
    <message>
        <source>Re&amp;move Loop</source>
        <translation>Schleife &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Start Loop Here</source>
        <translation>Schleife hier &amp;beginnen</translation>
    </message>
    <message>
        <source>&amp;End Loop Here</source>
        <translation>Schleife hier be&amp;enden</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
</context>
<context>
    <name>host::app::PlayButton</name>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
</context>
<context>
    <name>host::app::TimeDisplay</name>
    <message>
        <source>Remaining time</source>
        <translation>Restzeit</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>Verstrichene Zeit</translation>
    </message>
    <message>
        <source>Remaining time; click for the elapsed one</source>
        <translation>Restzeit; ein Klick zeigt die verstrichene</translation>
    </message>
    <message>
        <source>Elapsed time; click for the remaining one</source>
        <translation>Verstrichene Zeit; ein Klick zeigt die Restzeit</translation>
    </message>
</context>
<context>
    <name>host::app::TransportBar</name>
    <message>
        <source>Open…</source>
        <translation>Öffnen …</translation>
    </message>
    <message>
        <source>The device that plays</source>
        <translation>Das Gerät, das spielt</translation>
    </message>
    <message>
        <source>No device</source>
        <translation>Kein Gerät</translation>
    </message>
    <message>
        <source>No file</source>
        <translation>Keine Datei</translation>
    </message>
    <message>
        <source>of %1</source>
        <comment>the whole length</comment>
        <translation>von %1</translation>
    </message>
    <message>
        <source>Loop %1</source>
        <translation>Schleife %1</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Schleife</translation>
    </message>
    <message>
        <source>Loop from %1 to %2; click to switch it on or off</source>
        <translation>Schleife von %1 bis %2; ein Klick schaltet sie ein oder aus</translation>
    </message>
    <message>
        <source>Drag across the waveform to set a loop</source>
        <translation>Ziehen Sie über die Wellenform, um eine Schleife zu setzen</translation>
    </message>
</context>
<context>
    <name>host::app::WaveformView</name>
    <message>
        <source>No file</source>
        <translation>Keine Datei</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>loop from %1 to %2</source>
        <translation>Schleife von %1 bis %2</translation>
    </message>
    <message>
        <source>loop from %1 to %2, switched off</source>
        <translation>Schleife von %1 bis %2, ausgeschaltet</translation>
    </message>
    <message>
        <source>▼ Source overs: %1</source>
        <translation>▼ Overs der Quelle: %1</translation>
    </message>
    <message>
        <source>▲ Encoded overs: %1</source>
        <translation>▲ Overs codiert: %1</translation>
    </message>
    <message>
        <source>Waveform</source>
        <translation>Wellenform</translation>
    </message>
</context>
</TS>
