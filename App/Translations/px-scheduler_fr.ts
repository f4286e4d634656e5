<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Application</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>cannot copy the settings file %1: %2</source>
        <translation>impossible de copier le fichier de paramètres %1 : %2</translation>
    </message>
    <message>
        <source>the program does not run on these settings</source>
        <translation>le programme n’est pas en cours d’exécution avec ces paramètres</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>Cannot delete %1</source>
        <translation>Impossible de supprimer : %1</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>Impossible d’écrire : %1</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Keep the settings in &lt;file&gt; instead of the platform&apos;s configuration folder.</source>
        <translation>Conserver les paramètres dans &lt;file&gt; au lieu du dossier de configuration du système.</translation>
    </message>
    <message>
        <source>Use &lt;language&gt; in this run, for example de or pt_BR.</source>
        <translation>Utiliser la langue &lt;language&gt; lors de cette exécution, par exemple de ou pt_BR.</translation>
    </message>
    <message>
        <source>Use the theme light or dark in this run.</source>
        <translation>Utiliser le thème light ou dark lors de cette exécution.</translation>
    </message>
    <message>
        <source>Walk through the window on a copy of the settings (of a sample without --settings), write a picture of each state into &lt;folder&gt;, and end.</source>
        <translation>Parcourir la fenêtre sur une copie des paramètres (d’un exemple sans --settings), écrire une image de chaque état dans &lt;folder&gt;, puis terminer.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>%1: %2 (try --help)</source>
        <translation>%1 : %2 (essayez --help)</translation>
    </message>
    <message>
        <source>option --%1 needs a value</source>
        <translation>l’option --%1 exige une valeur</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>argument inattendu « %1 »</translation>
    </message>
    <message>
        <source>unknown theme &apos;%1&apos;; the themes are light and dark</source>
        <translation>thème inconnu « %1 » ; les thèmes sont light et dark</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;; the languages are %2</source>
        <translation>langue inconnue « %1 » ; les langues sont %2</translation>
    </message>
    <message>
        <source>Choose how screen recordings are timed.</source>
        <translation>Choisissez quand les enregistrements d’écran commencent et se terminent.</translation>
    </message>
    <message>
        <source>Start recording, in the program that runs already if there is one.</source>
        <translation>Démarrer l’enregistrement, dans le programme déjà en cours d’exécution s’il y en a un.</translation>
    </message>
    <message>
        <source>Stop the recording of the program that runs already.</source>
        <translation>Arrêter l’enregistrement du programme déjà en cours d’exécution.</translation>
    </message>
    <message>
        <source>Pause the recording of the program that runs already, or go on with it.</source>
        <translation>Mettre en pause l’enregistrement du programme déjà en cours d’exécution, ou le reprendre.</translation>
    </message>
    <message>
        <source>End the program that runs already, without a question.</source>
        <translation>Quitter le programme déjà en cours d’exécution, sans poser de question.</translation>
    </message>
    <message>
        <source>Start without a window.</source>
        <translation>Démarrer sans fenêtre.</translation>
    </message>
    <message>
        <source>options --%1 and --%2 cannot be used together</source>
        <translation>les options --%1 et --%2 ne peuvent pas être utilisées ensemble</translation>
    </message>
</context>
<context>
    <name>DurationText</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
</context>
<context>
    <name>FooterState</name>
    <message>
        <source>Next: %1, as soon as possible</source>
        <translation>Suivant : %1, dès que possible</translation>
    </message>
    <message>
        <source>Next: %1 on %2</source>
        <translation>Suivant : %1 le %2</translation>
    </message>
    <message>
        <source>Next: %1 in %2</source>
        <translation>Suivant : %1 dans %2</translation>
    </message>
    <message>
        <source>The recording starts</source>
        <translation>L’enregistrement démarre</translation>
    </message>
    <message>
        <source>%1 is about to start</source>
        <translation>%1 va démarrer</translation>
    </message>
    <message>
        <source>%1 starts in %2</source>
        <translation>%1 démarre dans %2</translation>
    </message>
    <message>
        <source>%1 starts when this recording has ended</source>
        <translation>%1 démarrera après cet enregistrement</translation>
    </message>
    <message>
        <source>This recording will end for %1</source>
        <translation>Cet enregistrement s’arrêtera pour %1</translation>
    </message>
    <message>
        <source>Ends in %1 for %2</source>
        <translation>S’arrête dans %1 pour %2</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>En pause : %1</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>Enregistrement : %1</translation>
    </message>
    <message>
        <source>%1 is being saved</source>
        <translation>%1 est en cours de sauvegarde</translation>
    </message>
</context>
<context>
    <name>NoticeText</name>
    <message>
        <source>%1 has been recorded</source>
        <translation>%1 est terminé</translation>
    </message>
    <message>
        <source>%1 has been stopped</source>
        <translation>%1 a été arrêté</translation>
    </message>
    <message>
        <source>%1 has been recorded in part</source>
        <translation>%1 est incomplet</translation>
    </message>
    <message>
        <source>%1 has not been recorded</source>
        <translation>%1 n’a pas été enregistré</translation>
    </message>
    <message>
        <source>%1 could not be recorded</source>
        <translation>%1 a échoué</translation>
    </message>
    <message>
        <source>Reason: %1.</source>
        <translation>Motif : %1.</translation>
    </message>
    <message>
        <source>The file is %1.</source>
        <translation>Le fichier est %1.</translation>
    </message>
    <message>
        <source>The rest is recorded into a new file.</source>
        <translation>Le reste est enregistré dans un nouveau fichier.</translation>
    </message>
    <message>
        <source>The computer cannot go to sleep</source>
        <translation>L’ordinateur ne peut pas se mettre en veille</translation>
    </message>
    <message>
        <source>The computer cannot hibernate</source>
        <translation>L’ordinateur ne peut pas se mettre en veille prolongée</translation>
    </message>
    <message>
        <source>The computer cannot be restarted</source>
        <translation>L’ordinateur ne peut pas être redémarré</translation>
    </message>
    <message>
        <source>The computer cannot be shut down</source>
        <translation>L’ordinateur ne peut pas être arrêté</translation>
    </message>
    <message>
        <source>The computer does not go to sleep</source>
        <translation>L’ordinateur ne se met pas en veille</translation>
    </message>
    <message>
        <source>The computer does not hibernate</source>
        <translation>L’ordinateur ne se met pas en veille prolongée</translation>
    </message>
    <message>
        <source>The computer is not restarted</source>
        <translation>L’ordinateur n’est pas redémarré</translation>
    </message>
    <message>
        <source>The computer is not shut down</source>
        <translation>L’ordinateur n’est pas arrêté</translation>
    </message>
    <message>
        <source>%1 starts at %2.</source>
        <translation>%1 démarre à %2.</translation>
    </message>
    <message>
        <source>%1 is about to be recorded</source>
        <translation>%1 va être enregistré</translation>
    </message>
    <message>
        <source>The recording starts at %1.</source>
        <translation>L’enregistrement démarre à %1.</translation>
    </message>
    <message>
        <source>%1 is being recorded</source>
        <translation>%1 est en cours d’enregistrement</translation>
    </message>
    <message>
        <source>Your recording ends in a moment</source>
        <translation>Votre enregistrement va s’arrêter</translation>
    </message>
    <message>
        <source>%1 waits for its screen</source>
        <translation>%1 attend son écran</translation>
    </message>
    <message>
        <source>It is recorded as soon as the screen is connected.</source>
        <translation>L’enregistrement démarrera dès que l’écran sera connecté.</translation>
    </message>
    <message>
        <source>%1 does not start</source>
        <translation>%1 ne démarre pas</translation>
    </message>
    <message>
        <source>The disk is full: %1 are free.</source>
        <translation>Le disque est plein : %1 libres.</translation>
    </message>
    <message>
        <source>The recording is finished.</source>
        <translation>L’enregistrement est terminé.</translation>
    </message>
    <message>
        <source>There is a problem with %1</source>
        <translation>Il y a un problème avec %1</translation>
    </message>
    <message>
        <source>your recording</source>
        <translation>votre enregistrement</translation>
    </message>
    <message>
        <source>The disk may be too small for the scheduled tasks</source>
        <translation>L’espace disque risque de ne pas suffire aux tâches planifiées</translation>
    </message>
    <message>
        <source>They are likely to need %1, and %2 can be used.</source>
        <translation>Elles auront probablement besoin de %1 ; %2 sont utilisables.</translation>
    </message>
    <message>
        <source>The program runs on</source>
        <translation>Le programme continue de s’exécuter</translation>
    </message>
    <message>
        <source>Its icon shows the window again. You can change this on the page &quot;General&quot;.</source>
        <translation>Son icône affiche à nouveau la fenêtre. Vous pouvez modifier cela sur la page « Général ».</translation>
    </message>
    <message>
        <source>Not everything works on this desktop</source>
        <translation>Tout ne fonctionne pas sur ce bureau</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Keep recording</source>
        <translation>Poursuivre</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Voir dans le dossier</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>The computer goes to sleep in %1</source>
        <translation>L’ordinateur se met en veille dans %1</translation>
    </message>
    <message>
        <source>The computer hibernates in %1</source>
        <translation>L’ordinateur se met en veille prolongée dans %1</translation>
    </message>
    <message>
        <source>The computer restarts in %1</source>
        <translation>L’ordinateur redémarre dans %1</translation>
    </message>
    <message>
        <source>The computer shuts down in %1</source>
        <translation>L’ordinateur s’arrête dans %1</translation>
    </message>
    <message>
        <source>Your recording</source>
        <translation>Votre enregistrement</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>« %1 »</translation>
    </message>
</context>
<context>
    <name>RecordingTexts</name>
    <message>
        <source>it started late</source>
        <translation>il a démarré en retard</translation>
    </message>
    <message>
        <source>an earlier part of it broke off</source>
        <translation>une partie précédente a été interrompue</translation>
    </message>
    <message>
        <source>the recorder broke down</source>
        <translation>l’enregistreur est tombé en panne</translation>
    </message>
    <message>
        <source>the program ended unexpectedly</source>
        <translation>le programme s’est terminé de façon inattendue</translation>
    </message>
    <message>
        <source>a task was due</source>
        <translation>une tâche devait démarrer</translation>
    </message>
    <message>
        <source>the computer was shut down</source>
        <translation>l’ordinateur a été arrêté</translation>
    </message>
    <message>
        <source>the computer was asleep</source>
        <translation>l’ordinateur était en veille</translation>
    </message>
    <message>
        <source>the program was not running</source>
        <translation>le programme n’était pas en cours d’exécution</translation>
    </message>
    <message>
        <source>the schedule was off</source>
        <translation>le planning était désactivé</translation>
    </message>
    <message>
        <source>the clock was set</source>
        <translation>l’horloge a été réglée</translation>
    </message>
    <message>
        <source>another recording was running</source>
        <translation>un autre enregistrement était en cours</translation>
    </message>
    <message>
        <source>the screen was not connected</source>
        <translation>l’écran n’était pas connecté</translation>
    </message>
    <message>
        <source>you skipped it</source>
        <translation>vous l’avez ignoré</translation>
    </message>
    <message>
        <source>the recorder is not installed</source>
        <translation>l’enregistreur n’est pas installé</translation>
    </message>
    <message>
        <source>the disk was nearly full</source>
        <translation>le disque était presque plein</translation>
    </message>
    <message>
        <source>the disk was full</source>
        <translation>le disque était plein</translation>
    </message>
    <message>
        <source>the display was gone</source>
        <translation>l’affichage n’était plus disponible</translation>
    </message>
    <message>
        <source>the program was ended</source>
        <translation>le programme a été quitté</translation>
    </message>
    <message>
        <source>the file existed already</source>
        <translation>le fichier existait déjà</translation>
    </message>
    <message>
        <source>the folder did not exist</source>
        <translation>le dossier n’existait pas</translation>
    </message>
    <message>
        <source>the folder could not be written to</source>
        <translation>il était impossible d’écrire dans le dossier</translation>
    </message>
    <message>
        <source>the desktop did not allow it</source>
        <translation>le bureau ne l’a pas autorisé</translation>
    </message>
    <message>
        <source>no encoder works on this computer</source>
        <translation>aucun encodeur ne fonctionne sur cet ordinateur</translation>
    </message>
    <message>
        <source>nothing was recorded</source>
        <translation>rien n’a été enregistré</translation>
    </message>
    <message>
        <source>the conversion to MP4 failed</source>
        <translation>la conversion en MP4 a échoué</translation>
    </message>
    <message>
        <source>the recorder reported an error</source>
        <translation>l’enregistreur a signalé une erreur</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Complet</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>Incomplet</translation>
    </message>
    <message>
        <source>Stopped by you</source>
        <translation>Arrêté par vous</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Manqué</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Recording now</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::AreaOverlay</name>
    <message>
        <source>Area of the screen</source>
        <translation>Zone de l’écran</translation>
    </message>
    <message>
        <source>Draw the area with the mouse, or move it with the arrow keys and resize it with Shift and the arrow keys. Enter takes it, Escape cancels.</source>
        <translation>Tracez la zone avec la souris, ou déplacez-la avec les touches fléchées et redimensionnez-la avec Maj et les touches fléchées. Entrée la valide, Échap annule.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::CalendarLook</name>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::DesktopNotices</name>
    <message>
        <source>Show the window</source>
        <translation>Afficher la fenêtre</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::FigureLabel</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::FilesPage</name>
    <message>
        <source>&amp;Folder for recordings:</source>
        <translation>&amp;Dossier des enregistrements :</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>Dossier des enregistrements</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir…</translation>
    </message>
    <message>
        <source>Browse for the folder for recordings</source>
        <translation>Parcourir pour choisir le dossier des enregistrements</translation>
    </message>
    <message>
        <source>Enter the full path of a folder.</source>
        <translation>Saisissez le chemin complet d’un dossier.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Il s’agit d’un fichier et non d’un dossier.</translation>
    </message>
    <message>
        <source>You are not allowed to write into this folder.</source>
        <translation>Vous n’êtes pas autorisé à écrire dans ce dossier.</translation>
    </message>
    <message>
        <source>The free space of this folder is unknown.</source>
        <translation>L’espace libre de ce dossier est inconnu.</translation>
    </message>
    <message>
        <source>Free space: %1</source>
        <translation>Espace libre : %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Choose where recordings are kept.</source>
        <translation>Choisissez où les enregistrements sont conservés.</translation>
    </message>
    <message>
        <source>This folder cannot be created.</source>
        <translation>Ce dossier ne peut pas être créé.</translation>
    </message>
    <message>
        <source>This folder does not exist yet. It will be created with the first recording.</source>
        <translation>Ce dossier n’existe pas encore. Il sera créé avec le premier enregistrement.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::GeneralPage</name>
    <message>
        <source>In this run: %1 (chosen at the start)</source>
        <translation>Pour cette exécution : %1 (choisi au démarrage)</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue :</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <translation>Comme le système (%1)</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;Thème :</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Comme le système</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>&amp;Ask all questions again</source>
        <translation>Poser à nouveau toutes les &amp;questions</translation>
    </message>
    <message>
        <source>Open settings &amp;folder</source>
        <translation>Ouvrir le &amp;dossier des paramètres</translation>
    </message>
    <message>
        <source>&amp;Open log</source>
        <translation>Ouvrir le &amp;journal</translation>
    </message>
    <message>
        <source>There is no log of this run.</source>
        <translation>Il n’y a pas de journal de cette exécution.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>Impossible d’ouvrir : %1</translation>
    </message>
    <message>
        <source>Some questions are no longer asked.</source>
        <translation>Certaines questions ne sont plus posées, comme vous l’avez choisi.</translation>
    </message>
    <message>
        <source>Every question is asked, for example before a task is deleted.</source>
        <translation>Toutes les questions sont posées, par exemple avant de supprimer une tâche.</translation>
    </message>
    <message>
        <source>All questions will be asked again</source>
        <translation>Toutes les questions sont à nouveau posées</translation>
    </message>
    <message>
        <source>When something goes wrong, your settings and the log of this run help to find out why.</source>
        <translation>En cas de problème, vos paramètres et le journal de cette exécution aident à trouver la cause.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Choose language and theme.</source>
        <translation>Choisissez la langue et l’apparence de l’application.</translation>
    </message>
    <message>
        <source>Start &amp;with the desktop</source>
        <translation>Démarrer &amp;avec la session</translation>
    </message>
    <message>
        <source>&amp;Keep running when the window is closed</source>
        <translation>&amp;Rester actif quand la fenêtre est fermée</translation>
    </message>
    <message>
        <source>While tasks are pending or a recording runs, the program stays in the tray. Where there is none, its window is minimized.</source>
        <translation>Tant que des tâches sont en attente ou qu’un enregistrement est en cours, le programme reste dans la zone de notification. S’il n’y en a pas, sa fenêtre est réduite.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::MainWindow</name>
    <message>
        <source>Recording Scheduler</source>
        <translation>Planificateur d’enregistrements</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>Pages de paramètres</translation>
    </message>
    <message>
        <source>Your changes are saved again.</source>
        <translation>Vos modifications sont de nouveau enregistrées.</translation>
    </message>
    <message>
        <source>Your changes could not be saved. They will be lost if you close the window now.</source>
        <translation>Vos modifications n’ont pas pu être enregistrées. Elles seront perdues si vous fermez la fenêtre maintenant.</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>Fermer quand même</translation>
    </message>
    <message>
        <source>The recording that is running will be stopped.</source>
        <translation>L’enregistrement en cours sera arrêté.</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) are still to come. They will not be recorded when the program is not running.</source>
        <translation>
            <numerusform>%n tâche est encore à venir. Elle ne sera pas enregistrée si le programme n’est pas en cours d’exécution.</numerusform>
            <numerusform>%n tâches sont encore à venir. Elles ne seront pas enregistrées si le programme n’est pas en cours d’exécution.</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close notice</source>
        <translation>Fermer l’avis</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelAnnouncer</name>
    <message>
        <source>Task added: %1</source>
        <translation>Tâche ajoutée : %1</translation>
    </message>
    <message>
        <source>All tasks deleted</source>
        <translation>Toutes les tâches ont été supprimées</translation>
    </message>
    <message>
        <source>Task deleted: %1</source>
        <translation>Tâche supprimée : %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelAreaTip</name>
    <message>
        <source>No area has been selected yet: all of screen 1 (%1) is recorded. You can select an area on the page &quot;Recording&quot;.</source>
        <translation>Aucune zone n’a encore été sélectionnée : tout l’écran 1 (%1) est enregistré. Vous pouvez sélectionner une zone sur la page « Enregistrement ».</translation>
    </message>
    <message>
        <source>Records %1, the area that is selected on the page &quot;Recording&quot;.</source>
        <translation>Enregistre %1, la zone sélectionnée sur la page « Enregistrement ».</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelNameGuard</name>
    <message>
        <source>A name cannot contain line breaks or other control characters.</source>
        <translation>Un nom ne peut contenir ni sauts de ligne ni autres caractères de contrôle.</translation>
    </message>
    <message>
        <source>A name cannot contain: %1</source>
        <translation>Un nom ne peut pas contenir : %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelTaskDetails</name>
    <message>
        <source>This task is over.</source>
        <translation>Cette tâche est passée.</translation>
    </message>
    <message>
        <source>Afterwards: %1</source>
        <translation>Ensuite : %1</translation>
    </message>
    <message>
        <source>Ends at %1</source>
        <translation>Se termine à %1</translation>
    </message>
    <message>
        <source>Ends on the next day at %1</source>
        <translation>Se termine le lendemain à %1</translation>
    </message>
    <message>
        <source>Records screen %1, which is not connected</source>
        <translation>Enregistre l’écran %1, qui n’est pas connecté</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>Enregistre : %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PictureCard</name>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>Images par secon&amp;de :</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>&amp;Qualité :</translation>
    </message>
    <message>
        <source>Fil&amp;e format:</source>
        <translation>&amp;Format de fichier :</translation>
    </message>
    <message>
        <source>Matroska (.mkv)</source>
        <translation>Matroska (.mkv)</translation>
    </message>
    <message>
        <source>MP4 (.mp4)</source>
        <translation>MP4 (.mp4)</translation>
    </message>
    <message>
        <source>Record the mouse &amp;pointer</source>
        <translation>Enregistrer le &amp;pointeur de la souris</translation>
    </message>
    <message>
        <source>Small: about %1 an hour</source>
        <translation>Réduite : environ %1 par heure</translation>
    </message>
    <message>
        <source>Normal: about %1 an hour</source>
        <translation>Normale : environ %1 par heure</translation>
    </message>
    <message>
        <source>High: about %1 an hour</source>
        <translation>Élevée : environ %1 par heure</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingControl</name>
    <message>
        <source>A task is about to start.</source>
        <translation>Une tâche va démarrer.</translation>
    </message>
    <message>
        <source>The desktop shows no notifications. The page &quot;Recordings&quot; tells what was recorded, and what was not.</source>
        <translation>Le bureau n’affiche pas de notifications. La page « Enregistrements » indique ce qui a été enregistré et ce qui ne l’a pas été.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingFooter</name>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>Taille du fichier</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Espace libre</translation>
    </message>
    <message>
        <source>Dropped frames</source>
        <translation>Images perdues</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>Dé&amp;marrer l’enregistrement</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>St&amp;op</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>Ign&amp;orer</translation>
    </message>
    <message>
        <source>Skip this task</source>
        <translation>Ignorer cette tâche</translation>
    </message>
    <message>
        <source>&amp;Keep recording</source>
        <translation>Poursui&amp;vre</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Annu&amp;ler</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>Ma&amp;intenant</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>jusqu’à %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 libres</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s) dropped</source>
        <translation>
            <numerusform>%n image perdue</numerusform>
            <numerusform>%n images perdues</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>Repre&amp;ndre</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>Pau&amp;se</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingPage</name>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Choose what is recorded, and how.</source>
        <translation>Choisissez ce qui est enregistré, et comment.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsModel</name>
    <message>
        <source>the file is gone</source>
        <translation>le fichier n’existe plus</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsPage</name>
    <message>
        <source>Recordings</source>
        <translation>Enregistrements</translation>
    </message>
    <message>
        <source>What was recorded, and what was not.</source>
        <translation>Ce qui a été enregistré, et ce qui ne l’a pas été.</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. Start a recording with the button below, or plan one on the page Schedule; it is listed here then.</source>
        <translation>Rien n’a encore été enregistré. Démarrez un enregistrement avec le bouton ci-dessous, ou planifiez-en un sur la page « Planning » ; il apparaîtra ensuite dans cette liste.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>O&amp;uvrir</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>Voir dans le &amp;dossier</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Réparer</translation>
    </message>
    <message>
        <source>Adds what a crash has kept from the end of the file, so that players can seek in it.</source>
        <translation>Ajoute ce qu’un plantage a empêché d’écrire à la fin du fichier, pour que les lecteurs puissent s’y déplacer.</translation>
    </message>
    <message>
        <source>Move to &amp;trash</source>
        <translation>Mettre à la &amp;corbeille</translation>
    </message>
    <message>
        <source>Remove from &amp;list</source>
        <translation>Re&amp;tirer de la liste</translation>
    </message>
    <message>
        <source>There is no file of this recording.</source>
        <translation>Il n’y a pas de fichier pour cet enregistrement.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>Impossible d’ouvrir : %1</translation>
    </message>
    <message>
        <source>Repairing: %1</source>
        <translation>Réparation en cours : %1</translation>
    </message>
    <message>
        <source>Repaired: %1</source>
        <translation>Réparé : %1</translation>
    </message>
    <message>
        <source>%1 could not be repaired</source>
        <translation>%1 n’a pas pu être réparé</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; will be moved to the trash. Are you sure?</source>
        <translation>L’enregistrement « %1 » sera mis à la corbeille. Voulez-vous vraiment continuer ?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; will be removed from the list. Are you sure?</source>
        <translation>« %1 » sera retiré de la liste. Voulez-vous vraiment continuer ?</translation>
    </message>
    <message>
        <source>Move to trash</source>
        <translation>Mettre à la corbeille</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash</source>
        <translation>%1 n’a pas pu être mis à la corbeille</translation>
    </message>
    <message>
        <source>Removed from the list: %1</source>
        <translation>Retiré de la liste : %1</translation>
    </message>
    <message>
        <source>Moved to the trash: %1</source>
        <translation>Mis à la corbeille : %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>Planning</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>Planning d’enregistrement</translation>
    </message>
    <message>
        <source>Choose when a recording stops by itself, and which recordings start by themselves.</source>
        <translation>Choisissez quand un enregistrement s’arrête automatiquement, et quels enregistrements démarrent automatiquement.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::ScreenshotTour</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>impossible de créer le dossier %1</translation>
    </message>
    <message>
        <source>cannot reach: %1</source>
        <translation>impossible d’atteindre : %1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>impossible d’écrire %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundCard</name>
    <message>
        <source>Record the sound of:</source>
        <translation>Enregistrer le son de :</translation>
    </message>
    <message>
        <source>Sound devices</source>
        <translation>Périphériques audio</translation>
    </message>
    <message>
        <source>All sound in one trac&amp;k</source>
        <translation>To&amp;ut le son sur une seule piste</translation>
    </message>
    <message>
        <source>Otherwise each device has a track of its own, for editing. Most players play only the first.</source>
        <translation>Sinon, chaque périphérique a sa propre piste, pour le montage. La plupart des lecteurs ne lisent que la première.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceList</name>
    <message>
        <source>Looking for sound devices...</source>
        <translation>Recherche des périphériques audio…</translation>
    </message>
    <message>
        <source>The sound devices of this computer cannot be listed.</source>
        <translation>Impossible de lister les périphériques audio de cet ordinateur.</translation>
    </message>
    <message>
        <source>There are no sound devices on this computer.</source>
        <translation>Il n’y a pas de périphérique audio sur cet ordinateur.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceRow</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (non connecté)</translation>
    </message>
    <message>
        <source>Level of %1</source>
        <translation>Niveau de %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SourceCard</name>
    <message>
        <source>Record a s&amp;creen</source>
        <translation>&amp;Enregistrer un écran</translation>
    </message>
    <message>
        <source>Screen that is recorded</source>
        <translation>Écran à enregistrer</translation>
    </message>
    <message>
        <source>Record the selected &amp;area</source>
        <translation>Enregistrer la &amp;zone sélectionnée</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>&amp;Gauche :</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>&amp;Haut :</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>La&amp;rgeur :</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>H&amp;auteur :</translation>
    </message>
    <message>
        <source>Left edge of the area in pixels</source>
        <translation>Bord gauche de la zone en pixels</translation>
    </message>
    <message>
        <source>Top edge of the area in pixels</source>
        <translation>Bord supérieur de la zone en pixels</translation>
    </message>
    <message>
        <source>Width of the area in pixels</source>
        <translation>Largeur de la zone en pixels</translation>
    </message>
    <message>
        <source>Height of the area in pixels</source>
        <translation>Hauteur de la zone en pixels</translation>
    </message>
    <message>
        <source>Choose o&amp;n the screen...</source>
        <translation>&amp;Choisir à l’écran…</translation>
    </message>
    <message>
        <source>Show &amp;outline</source>
        <translation>Voir le con&amp;tour</translation>
    </message>
    <message>
        <source>Screen %1, %2</source>
        <translation>Écran %1, %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1 : %2, %3</translation>
    </message>
    <message>
        <source>Screen %1 (not connected)</source>
        <translation>Écran %1 (non connecté)</translation>
    </message>
    <message>
        <source>No area has been selected yet: all of screen 1 is recorded instead, also by tasks with &quot;Selected area&quot;.</source>
        <translation>Aucune zone n’a encore été sélectionnée : tout l’écran 1 est enregistré à la place, y compris par les tâches avec « Zone sélectionnée ».</translation>
    </message>
    <message>
        <source>Tasks with &quot;Selected area&quot; record this area, too.</source>
        <translation>Les tâches avec « Zone sélectionnée » enregistrent aussi cette zone.</translation>
    </message>
    <message>
        <source>The screen that is to be recorded is not connected.</source>
        <translation>L’écran à enregistrer n’est pas connecté.</translation>
    </message>
    <message>
        <source>The selected area is not on any screen.</source>
        <translation>La zone sélectionnée ne se trouve sur aucun écran.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::TrayIcon</name>
    <message>
        <source>&amp;Start recording</source>
        <translation>Dé&amp;marrer l’enregistrement</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>St&amp;op</translation>
    </message>
    <message>
        <source>Show &amp;window</source>
        <translation>Afficher la &amp;fenêtre</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>Aucun enregistrement</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Reprendre</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::TrialCard</name>
    <message>
        <source>See and hear what a recording with these settings is like.</source>
        <translation>Voyez et entendez ce que donne un enregistrement avec ces paramètres.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Try fi&amp;ve seconds</source>
        <translation>Essa&amp;yer cinq secondes</translation>
    </message>
    <message>
        <source>Trial recording</source>
        <translation>Enregistrement d’essai</translation>
    </message>
    <message>
        <source>The trial recording was cancelled.</source>
        <translation>L’enregistrement d’essai a été annulé.</translation>
    </message>
    <message>
        <source>The trial recording was made, but there is no program that opens it: %1</source>
        <translation>L’enregistrement d’essai a été fait, mais aucun programme ne peut l’ouvrir : %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened. The recorder says: %1</source>
        <translation>L’enregistrement d’essai a été fait et ouvert. Message de l’enregistreur : %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened.</source>
        <translation>L’enregistrement d’essai a été fait et ouvert.</translation>
    </message>
    <message>
        <source>The recorder px-recorder cannot be started. Is it installed completely?</source>
        <translation>Impossible de démarrer l’enregistreur px-recorder. Est-il installé complètement ?</translation>
    </message>
    <message>
        <source>Nothing could be recorded. The recorder says: %1</source>
        <translation>Rien n’a pu être enregistré. Message de l’enregistreur : %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::Inhibitors</name>
    <message>
        <source>The computer cannot be kept from going to sleep while it records.</source>
        <translation>Impossible d’empêcher la mise en veille de l’ordinateur pendant l’enregistrement.</translation>
    </message>
    <message>
        <source>The computer cannot be kept from being shut down before the file is closed.</source>
        <translation>Impossible d’empêcher l’arrêt de l’ordinateur avant que le fichier soit fermé.</translation>
    </message>
    <message>
        <source>The screen cannot be kept from going dark while it is recorded.</source>
        <translation>Impossible d’empêcher l’écran de s’éteindre pendant son enregistrement.</translation>
    </message>
    <message>
        <source>A recording is running.</source>
        <translation>Un enregistrement est en cours.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecorderProcess</name>
    <message>
        <source>%1 is of another version</source>
        <translation>%1 est d’une autre version</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>Impossible de démarrer %1 : %2</translation>
    </message>
    <message>
        <source>The recorder crashed (signal %1).</source>
        <translation>L’enregistreur a planté (signal %1).</translation>
    </message>
    <message>
        <source>The recorder ended unexpectedly (exit status %1).</source>
        <translation>L’enregistreur s’est terminé de façon inattendue (code de sortie %1).</translation>
    </message>
    <message>
        <source>The recorder did not start in time.</source>
        <translation>L’enregistreur n’a pas démarré à temps.</translation>
    </message>
    <message>
        <source>The recorder stopped responding.</source>
        <translation>L’enregistreur ne répond plus.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecordingsList</name>
    <message>
        <source>The list of recordings %1 cannot be read: %2</source>
        <translation>Impossible de lire la liste des enregistrements %1 : %2</translation>
    </message>
    <message>
        <source>The list of recordings %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>La liste des enregistrements %1 est endommagée et ne peut pas être conservée sous un autre nom : %2</translation>
    </message>
    <message>
        <source>Some entries of the list of recordings could not be used. What the file held is kept in %1.</source>
        <translation>Certaines entrées de la liste des enregistrements n’ont pas pu être utilisées. Le contenu du fichier est conservé dans %1.</translation>
    </message>
    <message>
        <source>The list of recordings could not be understood, so it begins anew. What it held is kept in %1.</source>
        <translation>La liste des enregistrements n’a pas pu être interprétée ; une nouvelle liste est donc commencée. Son contenu est conservé dans %1.</translation>
    </message>
    <message>
        <source>%1: the list of recordings is not saved in %2</source>
        <translation>%1 : la liste des enregistrements n’est pas enregistrée dans %2</translation>
    </message>
</context>
</TS>
