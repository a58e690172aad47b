<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>StatusText</name>
    <message>
        <source>%1 mode %2</source>
        <translation>%1 mode %2</translation>
    </message>
    <message>
        <source>%1 %2 kbit/s</source>
        <translation>%1 %2 kbit/s</translation>
    </message>
    <message>
        <source>Listening test</source>
        <translation>Test d’écoute</translation>
    </message>
    <message>
        <source>really %1 kbit/s</source>
        <translation>réel : %1 kbit/s</translation>
    </message>
    <message>
        <source>latency %1 ms</source>
        <translation>latence %1 ms</translation>
    </message>
</context>
<context>
    <name>host::app::AnalysisIndicator</name>
    <message>
        <source>Reading: %1 %</source>
        <translation>Lecture : %1 %</translation>
    </message>
    <message>
        <source>Analysing: %1 %</source>
        <translation>Analyse : %1 %</translation>
    </message>
    <message>
        <source>Encoded: no overs</source>
        <translation>Encodé : aucun dépassement</translation>
    </message>
    <message>
        <source>Encoded overs: %1</source>
        <translation>Dépassements encodés : %1</translation>
    </message>
    <message>
        <source>Analysis stopped</source>
        <translation>Analyse arrêtée</translation>
    </message>
    <message>
        <source>Analysis failed</source>
        <translation>Échec de l’analyse</translation>
    </message>
    <message>
        <source>Analyse again</source>
        <translation>Analyser à nouveau</translation>
    </message>
    <message>
        <source>Stop the analysis</source>
        <translation>Arrêter l’analyse</translation>
    </message>
</context>
<context>
    <name>host::app::Audition</name>
    <message>
        <source>%1 kHz, played as %2 kHz</source>
        <translation>%1 kHz, lu à %2 kHz</translation>
    </message>
    <message>
        <source>%1 – AAC Audition</source>
        <translation>%1 – AAC Audition</translation>
    </message>
    <message>
        <source>Silent: %1</source>
        <translation>Muet : %1</translation>
    </message>
    <message>
        <source>No device</source>
        <translation>Aucun appareil</translation>
    </message>
    <message>
        <source>Silent: the device %1</source>
        <translation>Muet : appareil %1</translation>
    </message>
    <message>
        <source>The file cannot be read fast enough</source>
        <translation>Le fichier ne peut être lu assez vite</translation>
    </message>
    <message>
        <source>The encoder cannot keep up</source>
        <translation>L’encodeur ne suit pas</translation>
    </message>
    <message>
        <source>The file is damaged or cut off</source>
        <translation>Le fichier est endommagé ou tronqué</translation>
    </message>
    <message>
        <source>The recording has failed</source>
        <translation>L’enregistrement a échoué</translation>
    </message>
</context>
<context>
    <name>host::app::ChannelDialog</name>
    <message>
        <source>Choose Channels</source>
        <translation>Choisir les canaux</translation>
    </message>
    <message>
        <source>“%1” has %2 channels, and an AAC stream of this kind takes one or two. Which ones do you want to hear?</source>
        <translation>« %1 » comporte %2 canaux, et un flux AAC de ce type en accepte un ou deux. Lesquels voulez-vous entendre ?</translation>
    </message>
    <message>
        <source>Channel %1</source>
        <translation>Canal %1</translation>
    </message>
    <message>
        <source>None (mono)</source>
        <translation>Aucun (mono)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Gauche :</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Droite :</translation>
    </message>
</context>
<context>
    <name>host::app::DeviceMenu</name>
    <message>
        <source>No Device (silent)</source>
        <translation>Aucun appareil (muet)</translation>
    </message>
    <message>
        <source>Looking for devices…</source>
        <translation>Recherche d’appareils…</translation>
    </message>
</context>
<context>
    <name>host::app::FileOpening</name>
    <message>
        <source>Open Sound File</source>
        <translation>Ouvrir un fichier audio</translation>
    </message>
    <message>
        <source>Sound files (*.wav *.wave *.aif *.aiff *.aifc *.flac *.ogg *.oga *.opus *.mp3 *.w64 *.rf64 *.caf *.au);;All files (*)</source>
        <translation>Fichiers audio (*.wav *.wave *.aif *.aiff *.aifc *.flac *.ogg *.oga *.opus *.mp3 *.w64 *.rf64 *.caf *.au);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>AAC Audition</source>
        <translation>AAC Audition</translation>
    </message>
    <message>
        <source>The file cannot be played.</source>
        <translation>Le fichier ne peut pas être lu.</translation>
    </message>
    <message>
        <source>No Files</source>
        <translation>Aucun fichier</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Vider la liste</translation>
    </message>
</context>
<context>
    <name>host::app::MainWindow</name>
    <message>
        <source>Open a sound file, or drop one here</source>
        <translation>Ouvrez un fichier audio ou déposez-en un ici</translation>
    </message>
    <message>
        <source>AAC Audition</source>
        <translation>AAC Audition</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Ouvrir un fichier &amp;récent</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Lecture</translation>
    </message>
    <message>
        <source>&amp;Play or Pause</source>
        <translation>&amp;Lecture ou pause</translation>
    </message>
    <message>
        <source>To the &amp;Beginning</source>
        <translation>Au &amp;début</translation>
    </message>
    <message>
        <source>Five Seconds Ba&amp;ck</source>
        <translation>&amp;Reculer de cinq secondes</translation>
    </message>
    <message>
        <source>Five Seconds &amp;Forward</source>
        <translation>&amp;Avancer de cinq secondes</translation>
    </message>
    <message>
        <source>&amp;Loop</source>
        <translation>&amp;Boucle</translation>
    </message>
    <message>
        <source>Re&amp;move Loop</source>
        <translation>&amp;Supprimer la boucle</translation>
    </message>
    <message>
        <source>&amp;Start Loop Here</source>
        <translation>&amp;Commencer la boucle ici</translation>
    </message>
    <message>
        <source>&amp;End Loop Here</source>
        <translation>&amp;Terminer la boucle ici</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Agra&amp;ndir</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Réd&amp;uire</translation>
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
        <translation>Lecture</translation>
    </message>
</context>
<context>
    <name>host::app::TimeDisplay</name>
    <message>
        <source>Remaining time</source>
        <translation>Temps restant</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>Temps écoulé</translation>
    </message>
    <message>
        <source>Remaining time; click for the elapsed one</source>
        <translation>Temps restant ; cliquez pour le temps écoulé</translation>
    </message>
    <message>
        <source>Elapsed time; click for the remaining one</source>
        <translation>Temps écoulé ; cliquez pour le temps restant</translation>
    </message>
</context>
<context>
    <name>host::app::TransportBar</name>
    <message>
        <source>Open…</source>
        <translation>Ouvrir…</translation>
    </message>
    <message>
        <source>The device that plays</source>
        <translation>L’appareil de lecture</translation>
    </message>
    <message>
        <source>No device</source>
        <translation>Aucun appareil</translation>
    </message>
    <message>
        <source>No file</source>
        <translation>Aucun fichier</translation>
    </message>
    <message>
        <source>of %1</source>
        <comment>the whole length</comment>
        <translation>sur %1</translation>
    </message>
    <message>
        <source>Loop %1</source>
        <translation>Boucle %1</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Boucle</translation>
    </message>
    <message>
        <source>Loop from %1 to %2; click to switch it on or off</source>
        <translation>Boucle de %1 à %2 ; cliquez pour l’activer ou la désactiver</translation>
    </message>
    <message>
        <source>Drag across the waveform to set a loop</source>
        <translation>Faites glisser sur la forme d’onde pour définir une boucle</translation>
    </message>
</context>
<context>
    <name>host::app::WaveformView</name>
    <message>
        <source>No file</source>
        <translation>Aucun fichier</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>loop from %1 to %2</source>
        <translation>boucle de %1 à %2</translation>
    </message>
    <message>
        <source>loop from %1 to %2, switched off</source>
        <translation>boucle de %1 à %2, désactivée</translation>
    </message>
    <message>
        <source>▼ Source overs: %1</source>
        <translation>▼ Dépassements de la source : %1</translation>
    </message>
    <message>
        <source>▲ Encoded overs: %1</source>
        <translation>▲ Dépassements encodés : %1</translation>
    </message>
    <message>
        <source>Waveform</source>
        <translation>Forme d’onde</translation>
    </message>
</context>
</TS>
