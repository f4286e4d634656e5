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
</context>
<context>
    <name>CaptureControllerWrapper</name>
    <message>
        <source>Could not start recording because there is not enough disk space. Free more disk space and try again. Or set a different disk drive for storing output videos in %1File Preferences%2. </source>
        <translation>L’enregistrement n’a pas pu démarrer car l’espace disque est insuffisant. Libérez de l’espace et réessayez, ou choisissez un autre disque pour vos enregistrements dans les %1paramètres des fichiers%2.</translation>
    </message>
    <message>
        <source>File Preferences</source>
        <translation>Paramètres des fichiers</translation>
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
</context>
<context>
    <name>CreateRecordTaskWidget</name>
    <message>
        <source>New record:</source>
        <translation>Nouvel enregistrement :</translation>
    </message>
    <message>
        <source>Action on finish:</source>
        <translation>&amp;Action à la fin :</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>&amp;Nom du fichier :</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>&amp;Date :</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>dd/MM/yyyy</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>&amp;Heure :</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>D&amp;urée :</translation>
    </message>
    <message>
        <source>Capture:</source>
        <translation>Capturer :</translation>
    </message>
    <message>
        <source>Selected area</source>
        <translation>Zone sélectionnée</translation>
    </message>
    <message>
        <source>Selected area tooltip</source>
        <translation>Enregistre la zone choisie dans les réglages ou, si aucune n’a été choisie, tout le premier écran.
Cette version n’enregistre pas encore.</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Need select task name</source>
        <translation>Saisissez un nom pour la tâche.</translation>
    </message>
    <message>
        <source>Task with this title already exist</source>
        <translation>Une tâche portant ce nom existe déjà.</translation>
    </message>
    <message>
        <source>Curent capture time intersect with other capture time in the list</source>
        <translation>L’horaire de cet enregistrement chevauche celui d’un autre enregistrement de la liste.</translation>
    </message>
</context>
<context>
    <name>PowerAction</name>
    <message>
        <source>Do nothing</source>
        <translation>Ne rien faire</translation>
    </message>
    <message>
        <source>Quit the application</source>
        <translation>Quitter l’application</translation>
    </message>
    <message>
        <source>Sleep</source>
        <translation>Mettre en veille</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>Mettre en veille prolongée</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Redémarrer</translation>
    </message>
    <message>
        <source>Shut down</source>
        <translation>Arrêter</translation>
    </message>
</context>
<context>
    <name>RecordSchedulerWidget</name>
    <message>
        <source>All tasks will be permanently deleted from the recording schedule. Are you sure you want to continue?</source>
        <translation>Toutes les tâches seront définitivement supprimées du planning d’enregistrement. Voulez-vous vraiment continuer ?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>The task hasn&apos;t been saved. Would you like to add this task to the recording schedule?</source>
        <translation>La tâche n’a pas été enregistrée. Voulez-vous l’ajouter au planning d’enregistrement ?</translation>
    </message>
    <message>
        <source>Don&apos;t Add</source>
        <translation>Ne pas ajouter</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Do not schedule capture</source>
        <translation>Ne &amp;pas planifier l’enregistrement</translation>
    </message>
    <message>
        <source>Stop capture after</source>
        <translation>A&amp;rrêter l’enregistrement après</translation>
    </message>
    <message>
        <source>Record on schedule</source>
        <translation>&amp;Enregistrer selon un planning</translation>
    </message>
    <message>
        <source>Add record event</source>
        <translation>Ajouter un enregistrement</translation>
    </message>
    <message>
        <source>Capture duration in limited capture:</source>
        <translation>D&amp;urée de l’enregistrement :</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>When capture ends:</source>
        <translation>À la &amp;fin de l’enregistrement :</translation>
    </message>
</context>
<context>
    <name>ScheduleRecordTableWidget</name>
    <message>
        <source>Task </source>
        <translation>Tâche </translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>dd/MM/yyyy</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>The task will be permanently deleted from the recording schedule. Are you sure you want to delete the task?</source>
        <translation>La tâche sera définitivement supprimée du planning d’enregistrement. Voulez-vous vraiment la supprimer ?</translation>
    </message>
    <message>
        <source>Always delete</source>
        <translation>Toujours supprimer</translation>
    </message>
</context>
<context>
    <name>SettingsStore</name>
    <message>
        <source>The settings file %1 is not a file.</source>
        <translation>Le fichier de paramètres %1 n’est pas un fichier.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder is missing and cannot be created either.</source>
        <translation>Impossible de créer le fichier de paramètres %1 : son dossier est absent et ne peut pas être créé non plus.</translation>
    </message>
    <message>
        <source>The settings file %1 is in use by another process.</source>
        <translation>Le fichier de paramètres %1 est utilisé par un autre processus.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder cannot be written to.</source>
        <translation>Impossible de créer le fichier de paramètres %1 : son dossier n’est pas accessible en écriture.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2</source>
        <translation>Impossible de lire le fichier de paramètres %1 : %2</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>Le fichier de paramètres %1 est endommagé et ne peut pas être conservé sous un autre nom : %2</translation>
    </message>
    <message>
        <source>The settings file could not be understood, so the defaults are in use. What it held is kept in %1.</source>
        <translation>Le fichier de paramètres n’a pas pu être interprété ; les valeurs par défaut sont donc utilisées. Son contenu est conservé dans %1.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. Tasks left out: %2. What the file held is kept in %1.</source>
        <translation>Certains paramètres n’ont pas pu être utilisés. Tâches omises : %2. Le contenu du fichier est conservé dans %1.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. What the file held is kept in %1.</source>
        <translation>Certains paramètres n’ont pas pu être utilisés. Le contenu du fichier est conservé dans %1.</translation>
    </message>
    <message>
        <source>Another program has changed the settings file. Its version is kept in %1; the settings shown here stay in use.</source>
        <translation>Un autre programme a modifié le fichier de paramètres. Sa version est conservée dans %1 ; les paramètres affichés ici restent en vigueur.</translation>
    </message>
    <message>
        <source>Only a part of the file could be read</source>
        <translation>Seule une partie du fichier a pu être lue</translation>
    </message>
    <message>
        <source>%2: your changes are not saved in %1</source>
        <translation>%2 : vos modifications ne sont pas enregistrées dans %1</translation>
    </message>
    <message>
        <source>The file is in use by another process</source>
        <translation>Le fichier est utilisé par un autre processus</translation>
    </message>
    <message>
        <source>The folder cannot be written to</source>
        <translation>Impossible d’écrire dans le dossier</translation>
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
        <source>Ready to record</source>
        <translation>Prêt à enregistrer</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>Dé&amp;marrer l’enregistrement</translation>
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
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>Planning</translation>
    </message>
    <message>
        <source>Choose when a recording stops or starts by itself. Your choice is kept; this version does not record yet.</source>
        <translation>Choisissez quand un enregistrement démarre ou s’arrête automatiquement. Votre choix est conservé ; cette version n’enregistre pas encore.</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>Planning d’enregistrement</translation>
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
</TS>
