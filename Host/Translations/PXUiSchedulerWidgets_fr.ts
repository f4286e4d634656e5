<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
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
        <translation>Enregistre la zone choisie dans les réglages ou, si aucune n’a été choisie, tout le premier écran.</translation>
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
</TS>
