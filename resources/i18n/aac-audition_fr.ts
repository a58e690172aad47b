<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>AAC Audition %1</source>
        <translation>AAC Audition %1</translation>
    </message>
    <message>
        <source>Hear, measure and judge what AAC encoding does to a mix before it is delivered.

MIT licence. Encodes with FDK AAC and decodes with FFmpeg’s libavcodec, which have licences of their own: a build with both is not to be passed on.</source>
        <translation>Écouter, mesurer et juger ce que l’encodage AAC fait d’un mixage avant sa livraison.

Licence MIT. Encode avec FDK AAC et décode avec libavcodec de FFmpeg, qui ont leurs propres licences : un programme compilé avec les deux ne doit pas être distribué.</translation>
    </message>
</context>
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
    <name>host::Message</name>
    <message>
        <source>cannot write &apos;%1&apos;: it is a folder; give the path of a file</source>
        <translation>impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: c’est un dossier&#xa0;; indiquez le chemin d’un fichier</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: %2; choose another place</source>
        <translation>impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: %2&#xa0;; choisissez un autre emplacement</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: it is not an ordinary file; choose another name</source>
        <translation>impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: ce n’est pas un fichier ordinaire&#xa0;; choisissez un autre nom</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: %2; choose another name</source>
        <translation>impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: %2&#xa0;; choisissez un autre nom</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: %2; choose a folder that can be written to</source>
        <translation>impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: %2&#xa0;; choisissez un dossier accessible en écriture</translation>
    </message>
    <message>
        <source>cannot make the converter: %1</source>
        <translation>impossible de créer le convertisseur&#xa0;: %1</translation>
    </message>
    <message>
        <source>there is no device &apos;%1&apos;; give one of: %2</source>
        <translation>l’appareil «&#xa0;%1&#xa0;» n’existe pas&#xa0;; indiquez l’un de ceux-ci&#xa0;: %2</translation>
    </message>
    <message>
        <source>the converter refused the encoder setting (status %1); choose another one</source>
        <translation>le convertisseur a refusé le réglage de l’encodeur (état %1)&#xa0;; choisissez-en un autre</translation>
    </message>
    <message>
        <source>the converter does not tell its encoder setting (status %1)</source>
        <translation>le convertisseur n’indique pas le réglage de son encodeur (état %1)</translation>
    </message>
    <message>
        <source>the converter does not do %1 for this file; choose the format he or aac</source>
        <translation>le convertisseur ne prend pas en charge %1 pour ce fichier&#xa0;; choisissez le format he ou aac</translation>
    </message>
    <message>
        <source>the converter does not do %1 for this file; choose the format aac</source>
        <translation>le convertisseur ne prend pas en charge %1 pour ce fichier&#xa0;; choisissez le format aac</translation>
    </message>
    <message>
        <source>the converter refused the preset (status %1); choose another one</source>
        <translation>le convertisseur a refusé le préréglage (état %1)&#xa0;; choisissez-en un autre</translation>
    </message>
    <message>
        <source>the converter does not tell its bit rate (status %1)</source>
        <translation>le convertisseur n’indique pas son débit (état %1)</translation>
    </message>
    <message>
        <source>the converter does not tell its monitored signal (status %1)</source>
        <translation>le convertisseur n’indique pas le signal écouté (état %1)</translation>
    </message>
    <message>
        <source>the converter does not tell its peak statistics (status %1)</source>
        <translation>le convertisseur n’indique pas ses statistiques de crête (état %1)</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: %2</source>
        <translation>impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>le disque est plein</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: %2; nothing was kept</source>
        <translation>impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: %2&#xa0;; rien n’a été conservé</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: the disk may be full; nothing was kept</source>
        <translation>impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: le disque est peut-être plein&#xa0;; rien n’a été conservé</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: the disk was too slow for %2 frames; record to a faster disk</source>
        <translation>impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: le disque a été trop lent pour %2 échantillons&#xa0;; enregistrez sur un disque plus rapide</translation>
    </message>
    <message>
        <source>cannot resample from %1 to %2 Hz: %3; convert the file to 44100 or 48000 Hz first</source>
        <translation>impossible de rééchantillonner de %1 à %2 Hz&#xa0;: %3&#xa0;; convertissez d’abord le fichier en 44100 ou 48000 Hz</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>erreur inconnue</translation>
    </message>
    <message>
        <source>cannot play to &apos;%1&apos;: %2; choose another device</source>
        <translation>impossible de lire sur «&#xa0;%1&#xa0;»&#xa0;: %2&#xa0;; choisissez un autre appareil</translation>
    </message>
    <message>
        <source>it is mono</source>
        <translation>il est mono</translation>
    </message>
    <message>
        <source>it has stopped</source>
        <translation>il s’est arrêté</translation>
    </message>
    <message>
        <source>the device &apos;%1&apos; has failed: %2</source>
        <translation>l’appareil «&#xa0;%1&#xa0;» est en panne&#xa0;: %2</translation>
    </message>
    <message>
        <source>cannot read &apos;%1&apos;: %2</source>
        <translation>impossible de lire «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>there is no such file; give the path of a sound file</source>
        <translation>ce fichier n’existe pas&#xa0;; indiquez le chemin d’un fichier audio</translation>
    </message>
    <message>
        <source>%1; check the path and its permissions</source>
        <translation>%1&#xa0;; vérifiez le chemin et ses droits d’accès</translation>
    </message>
    <message>
        <source>it is a folder; give the path of a sound file</source>
        <translation>c’est un dossier&#xa0;; indiquez le chemin d’un fichier audio</translation>
    </message>
    <message>
        <source>it is not an ordinary file; give the path of a sound file</source>
        <translation>ce n’est pas un fichier ordinaire&#xa0;; indiquez le chemin d’un fichier audio</translation>
    </message>
    <message>
        <source>the file is empty; give a file that holds audio</source>
        <translation>le fichier est vide&#xa0;; indiquez un fichier qui contient du son</translation>
    </message>
    <message>
        <source>it holds no audio; give a file with at least one sample</source>
        <translation>il ne contient pas de son&#xa0;; indiquez un fichier d’au moins un échantillon</translation>
    </message>
    <message>
        <source>%1; give a WAV, AIFF, FLAC, Ogg or MP3 file</source>
        <translation>%1&#xa0;; indiquez un fichier WAV, AIFF, FLAC, Ogg ou MP3</translation>
    </message>
    <message>
        <source>its sample rate is %1 Hz; give a file from 2 to 768 kHz</source>
        <translation>sa fréquence d’échantillonnage est de %1 Hz&#xa0;; indiquez un fichier de 2 à 768 kHz</translation>
    </message>
    <message>
        <source>cannot read &apos;%1&apos;: it has %2 channels; give a mono or stereo file, or choose two of them with --channels, such as 1,2</source>
        <translation>impossible de lire «&#xa0;%1&#xa0;»&#xa0;: il comporte %2 canaux&#xa0;; indiquez un fichier mono ou stéréo, ou choisissez deux canaux avec --channels, par exemple 1,2</translation>
    </message>
    <message>
        <source>it has no channel %1; give channels from 1 to %2</source>
        <translation>il n’a pas de canal %1&#xa0;; indiquez des canaux de 1 à %2</translation>
    </message>
    <message>
        <source>cannot show the converter&apos;s view: %1; build or install &apos;%2&apos; again</source>
        <translation>impossible d’afficher la vue du convertisseur&#xa0;: %1&#xa0;; recompilez ou réinstallez «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>its bundle is missing</source>
        <translation>son bundle est absent</translation>
    </message>
    <message>
        <source>its bundle cannot be loaded (%1)</source>
        <translation>son bundle ne peut pas être chargé (%1)</translation>
    </message>
    <message>
        <source>its bundle has no entry</source>
        <translation>son bundle n’a pas de point d’entrée</translation>
    </message>
    <message>
        <source>its bundle has no factory</source>
        <translation>son bundle n’a pas de fabrique</translation>
    </message>
    <message>
        <source>its bundle gave none</source>
        <translation>son bundle n’en a fourni aucune</translation>
    </message>
    <message>
        <source>the converter refused the monitored signal</source>
        <translation>le convertisseur a refusé le signal à écouter</translation>
    </message>
    <message>
        <source>there is no display to open a window on; add --headless FILE</source>
        <translation>il n’y a pas d’écran où ouvrir une fenêtre&#xa0;; ajoutez --headless FICHIER</translation>
    </message>
    <message>
        <source>cannot show the converter&apos;s view: it is made for another toolkit</source>
        <translation>impossible d’afficher la vue du convertisseur&#xa0;: elle est faite pour une autre boîte à outils</translation>
    </message>
    <message>
        <source>cannot write to standard output</source>
        <translation>impossible d’écrire sur la sortie standard</translation>
    </message>
    <message>
        <source>the encoder failed on the way; try another encoder setting</source>
        <translation>l’encodeur a échoué en cours de route&#xa0;; essayez un autre réglage de l’encodeur</translation>
    </message>
    <message>
        <source>interrupted; nothing was written</source>
        <translation>interrompu ; rien n’a été écrit</translation>
    </message>
</context>
<context>
    <name>host::audition::AnalysisIndicator</name>
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
        <translation>Encodé : aucun over</translation>
    </message>
    <message>
        <source>Encoded overs: %1</source>
        <translation>Overs encodés : %1</translation>
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
    <name>host::audition::Audition</name>
    <message>
        <source>%1 kHz, played as %2 kHz</source>
        <translation>%1 kHz, lu à %2 kHz</translation>
    </message>
    <message>
        <source>%1 – AAC Audition</source>
        <translation>%1 – AAC Audition</translation>
    </message>
    <message>
        <source>Converted to the device&apos;s %1 kHz</source>
        <translation>Converti aux %1 kHz de l’appareil</translation>
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
        <source>The file cannot be read fast enough</source>
        <translation>Le fichier ne peut être lu assez vite</translation>
    </message>
    <message>
        <source>%1 samples were missing during the test: do not trust its result</source>
        <translation>%1 échantillons ont manqué pendant le test : ne pas se fier au résultat</translation>
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
    <name>host::audition::ChannelDialog</name>
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
    <name>host::audition::DeviceMenu</name>
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
    <name>host::audition::FileOpening</name>
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
    <name>host::audition::MainWindow</name>
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
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;About AAC Audition</source>
        <translation>À &amp;propos d’AAC Audition</translation>
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
    <name>host::audition::PlayButton</name>
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
    <name>host::audition::TimeDisplay</name>
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
    <name>host::audition::TransportBar</name>
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
    <name>host::audition::WaveformView</name>
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
        <translation>▼ Overs de la source : %1</translation>
    </message>
    <message>
        <source>▲ Encoded overs: %1</source>
        <translation>▲ Overs encodés : %1</translation>
    </message>
    <message>
        <source>Waveform</source>
        <translation>Forme d’onde</translation>
    </message>
</context>
</TS>
