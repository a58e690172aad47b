<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>AAC Audition %1</source>
        <translation>AAC Audition %1</translation>
    </message>
    <message>
        <source>Hear, measure and judge what AAC encoding does to a mix before it is delivered.

MIT licence. Encodes with FDK AAC and decodes with FFmpeg’s libavcodec, which have licences of their own: a build with both is not to be passed on.</source>
        <translation>Hören, messen und beurteilen, was die AAC-Codierung aus einem Mix macht, bevor er abgegeben wird.

MIT-Lizenz. Codiert mit FDK AAC und decodiert mit libavcodec von FFmpeg, die eigene Lizenzen haben: Ein Programm mit beiden darf nicht weitergegeben werden.</translation>
    </message>
</context>
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
    <name>host::Message</name>
    <message>
        <source>cannot write &apos;%1&apos;: it is a folder; give the path of a file</source>
        <translation>„%1“ kann nicht geschrieben werden: Das ist ein Ordner; geben Sie den Pfad einer Datei an</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: %2; choose another place</source>
        <translation>„%1“ kann nicht geschrieben werden: %2; wählen Sie einen anderen Ort</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: it is not an ordinary file; choose another name</source>
        <translation>„%1“ kann nicht geschrieben werden: Das ist keine gewöhnliche Datei; wählen Sie einen anderen Namen</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: %2; choose another name</source>
        <translation>„%1“ kann nicht geschrieben werden: %2; wählen Sie einen anderen Namen</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: %2; choose a folder that can be written to</source>
        <translation>„%1“ kann nicht geschrieben werden: %2; wählen Sie einen Ordner, in den Sie schreiben dürfen</translation>
    </message>
    <message>
        <source>cannot make the converter: %1</source>
        <translation>Der Konverter lässt sich nicht anlegen: %1</translation>
    </message>
    <message>
        <source>there is no device &apos;%1&apos;; give one of: %2</source>
        <translation>Es gibt kein Gerät „%1“; geben Sie eines von diesen an: %2</translation>
    </message>
    <message>
        <source>the converter refused the encoder setting (status %1); choose another one</source>
        <translation>Der Konverter hat die Encoder-Einstellung abgelehnt (Status %1); wählen Sie eine andere</translation>
    </message>
    <message>
        <source>the converter does not tell its encoder setting (status %1)</source>
        <translation>Der Konverter nennt seine Encoder-Einstellung nicht (Status %1)</translation>
    </message>
    <message>
        <source>the converter does not do %1 for this file; choose the format he or aac</source>
        <translation>Der Konverter kann %1 für diese Datei nicht; wählen Sie das Format he oder aac</translation>
    </message>
    <message>
        <source>the converter does not do %1 for this file; choose the format aac</source>
        <translation>Der Konverter kann %1 für diese Datei nicht; wählen Sie das Format aac</translation>
    </message>
    <message>
        <source>the converter refused the preset (status %1); choose another one</source>
        <translation>Der Konverter hat die Voreinstellung abgelehnt (Status %1); wählen Sie eine andere</translation>
    </message>
    <message>
        <source>the converter does not tell its bit rate (status %1)</source>
        <translation>Der Konverter nennt seine Bitrate nicht (Status %1)</translation>
    </message>
    <message>
        <source>the converter does not tell its monitored signal (status %1)</source>
        <translation>Der Konverter nennt das abgehörte Signal nicht (Status %1)</translation>
    </message>
    <message>
        <source>the converter does not tell its peak statistics (status %1)</source>
        <translation>Der Konverter nennt seine Spitzenwerte nicht (Status %1)</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: %2</source>
        <translation>„%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>Der Datenträger ist voll</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: %2; nothing was kept</source>
        <translation>„%1“ kann nicht geschrieben werden: %2; nichts wurde behalten</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: the disk may be full; nothing was kept</source>
        <translation>„%1“ kann nicht geschrieben werden: Der Datenträger ist vielleicht voll; nichts wurde behalten</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: the disk was too slow for %2 frames; record to a faster disk</source>
        <translation>„%1“ kann nicht geschrieben werden: Der Datenträger war für %2 Abtastwerte zu langsam; nehmen Sie auf einem schnelleren auf</translation>
    </message>
    <message>
        <source>cannot resample from %1 to %2 Hz: %3; convert the file to 44100 or 48000 Hz first</source>
        <translation>Umrechnen von %1 auf %2 Hz geht nicht: %3; wandeln Sie die Datei zuerst in 44100 oder 48000 Hz um</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>unbekannter Fehler</translation>
    </message>
    <message>
        <source>cannot play to &apos;%1&apos;: %2; choose another device</source>
        <translation>Auf „%1“ kann nicht gespielt werden: %2; wählen Sie ein anderes Gerät</translation>
    </message>
    <message>
        <source>it is mono</source>
        <translation>Es ist einkanalig</translation>
    </message>
    <message>
        <source>it has stopped</source>
        <translation>Es ist stehen geblieben</translation>
    </message>
    <message>
        <source>the device &apos;%1&apos; has failed: %2</source>
        <translation>Das Gerät „%1“ ist ausgefallen: %2</translation>
    </message>
    <message>
        <source>cannot read &apos;%1&apos;: %2</source>
        <translation>„%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>there is no such file; give the path of a sound file</source>
        <translation>Es gibt keine solche Datei; geben Sie den Pfad einer Tondatei an</translation>
    </message>
    <message>
        <source>%1; check the path and its permissions</source>
        <translation>%1; prüfen Sie den Pfad und seine Rechte</translation>
    </message>
    <message>
        <source>it is a folder; give the path of a sound file</source>
        <translation>Das ist ein Ordner; geben Sie den Pfad einer Tondatei an</translation>
    </message>
    <message>
        <source>it is not an ordinary file; give the path of a sound file</source>
        <translation>Das ist keine gewöhnliche Datei; geben Sie den Pfad einer Tondatei an</translation>
    </message>
    <message>
        <source>the file is empty; give a file that holds audio</source>
        <translation>Die Datei ist leer; geben Sie eine an, die Ton enthält</translation>
    </message>
    <message>
        <source>it holds no audio; give a file with at least one sample</source>
        <translation>Sie enthält keinen Ton; geben Sie eine Datei mit mindestens einem Abtastwert an</translation>
    </message>
    <message>
        <source>%1; give a WAV, AIFF, FLAC, Ogg or MP3 file</source>
        <translation>%1; geben Sie eine WAV-, AIFF-, FLAC-, Ogg- oder MP3-Datei an</translation>
    </message>
    <message>
        <source>its sample rate is %1 Hz; give a file from 2 to 768 kHz</source>
        <translation>Ihre Abtastrate ist %1 Hz; geben Sie eine Datei von 2 bis 768 kHz an</translation>
    </message>
    <message>
        <source>cannot read &apos;%1&apos;: it has %2 channels; give a mono or stereo file, or choose two of them with --channels, such as 1,2</source>
        <translation>„%1“ kann nicht gelesen werden: Sie hat %2 Kanäle; geben Sie eine Mono- oder Stereodatei an, oder wählen Sie mit --channels zwei davon, etwa 1,2</translation>
    </message>
    <message>
        <source>it has no channel %1; give channels from 1 to %2</source>
        <translation>Sie hat keinen Kanal %1; geben Sie Kanäle von 1 bis %2 an</translation>
    </message>
    <message>
        <source>cannot show the converter&apos;s view: %1; build or install &apos;%2&apos; again</source>
        <translation>Die Ansicht des Konverters lässt sich nicht zeigen: %1; bauen oder installieren Sie „%2“ erneut</translation>
    </message>
    <message>
        <source>its bundle is missing</source>
        <translation>Ihr Bundle fehlt</translation>
    </message>
    <message>
        <source>its bundle cannot be loaded (%1)</source>
        <translation>Ihr Bundle lässt sich nicht laden (%1)</translation>
    </message>
    <message>
        <source>its bundle has no entry</source>
        <translation>Ihr Bundle hat keinen Einstiegspunkt</translation>
    </message>
    <message>
        <source>its bundle has no factory</source>
        <translation>Ihr Bundle hat keine Factory</translation>
    </message>
    <message>
        <source>its bundle gave none</source>
        <translation>Ihr Bundle hat keine geliefert</translation>
    </message>
    <message>
        <source>the converter refused the monitored signal</source>
        <translation>Der Konverter hat das abzuhörende Signal abgelehnt</translation>
    </message>
    <message>
        <source>there is no display to open a window on; add --headless FILE</source>
        <translation>Es gibt keinen Bildschirm für ein Fenster; fügen Sie --headless DATEI hinzu</translation>
    </message>
    <message>
        <source>cannot show the converter&apos;s view: it is made for another toolkit</source>
        <translation>Die Ansicht des Konverters lässt sich nicht zeigen: Sie ist für ein anderes Toolkit gemacht</translation>
    </message>
    <message>
        <source>cannot write to standard output</source>
        <translation>In die Standardausgabe kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the encoder failed on the way; try another encoder setting</source>
        <translation>Der Encoder hat unterwegs versagt; versuchen Sie es mit einer anderen Encoder-Einstellung</translation>
    </message>
    <message>
        <source>interrupted; nothing was written</source>
        <translation>unterbrochen; nichts wurde geschrieben</translation>
    </message>
</context>
<context>
    <name>host::audition::AnalysisIndicator</name>
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
    <name>host::audition::Audition</name>
    <message>
        <source>%1 kHz, played as %2 kHz</source>
        <translation>%1 kHz, gespielt mit %2 kHz</translation>
    </message>
    <message>
        <source>%1 – AAC Audition</source>
        <translation>%1 – AAC Audition</translation>
    </message>
    <message>
        <source>Converted to the device&apos;s %1 kHz</source>
        <translation>Umgerechnet auf die %1 kHz des Geräts</translation>
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
        <source>The file cannot be read fast enough</source>
        <translation>Die Datei lässt sich nicht schnell genug lesen</translation>
    </message>
    <message>
        <source>%1 samples were missing during the test: do not trust its result</source>
        <translation>Während des Tests fehlten %1 Samples: Das Ergebnis ist nicht verlässlich</translation>
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
    <name>host::audition::ChannelDialog</name>
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
    <name>host::audition::DeviceMenu</name>
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
    <name>host::audition::FileOpening</name>
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
    <name>host::audition::MainWindow</name>
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
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About AAC Audition</source>
        <translation>&amp;Über AAC Audition</translation>
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
    <name>host::audition::PlayButton</name>
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
    <name>host::audition::TimeDisplay</name>
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
    <name>host::audition::TransportBar</name>
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
    <name>host::audition::WaveformView</name>
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
