<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>CaptureControllerWrapper</name>
    <message>
        <source>Could not start recording because there is not enough disk space. Free more disk space and try again. Or set a different disk drive for storing output videos in %1File Preferences%2. </source>
        <translation>Impossibile avviare la registrazione perché lo spazio su disco non è sufficiente. Libera spazio e riprova, oppure scegli un’altra unità per le registrazioni nelle %1impostazioni dei file%2.</translation>
    </message>
    <message>
        <source>File Preferences</source>
        <translation>Impostazioni dei file</translation>
    </message>
</context>
<context>
    <name>CreateRecordTaskWidget</name>
    <message>
        <source>New record:</source>
        <translation>Nuova registrazione:</translation>
    </message>
    <message>
        <source>Action on finish:</source>
        <translation>A&amp;zione al termine:</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crea</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>&amp;Nome file:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>&amp;Data:</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>dd/MM/yyyy</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>&amp;Ora:</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>D&amp;urata:</translation>
    </message>
    <message>
        <source>Capture:</source>
        <translation>Cattura:</translation>
    </message>
    <message>
        <source>Selected area</source>
        <translation>Area selezionata</translation>
    </message>
    <message>
        <source>Selected area tooltip</source>
        <translation>Registra l’area scelta nelle impostazioni; se non ne è stata scelta nessuna, tutto il primo schermo.</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Schermo intero</translation>
    </message>
    <message>
        <source>Need select task name</source>
        <translation>Inserisci un nome per l’attività.</translation>
    </message>
    <message>
        <source>Task with this title already exist</source>
        <translation>Esiste già un’attività con questo nome.</translation>
    </message>
    <message>
        <source>Curent capture time intersect with other capture time in the list</source>
        <translation>L’orario di questa registrazione si sovrappone a quello di un’altra registrazione nell’elenco.</translation>
    </message>
</context>
<context>
    <name>PowerAction</name>
    <message>
        <source>Do nothing</source>
        <translation>Nessuna azione</translation>
    </message>
    <message>
        <source>Quit the application</source>
        <translation>Esci dall’applicazione</translation>
    </message>
    <message>
        <source>Sleep</source>
        <translation>Sospendi</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>Iberna</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Riavvia</translation>
    </message>
    <message>
        <source>Shut down</source>
        <translation>Arresta</translation>
    </message>
</context>
<context>
    <name>RecordSchedulerWidget</name>
    <message>
        <source>All tasks will be permanently deleted from the recording schedule. Are you sure you want to continue?</source>
        <translation>Tutte le attività verranno eliminate definitivamente dalla pianificazione. Continuare?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>The task hasn&apos;t been saved. Would you like to add this task to the recording schedule?</source>
        <translation>L’attività non è stata salvata. Aggiungerla alla pianificazione?</translation>
    </message>
    <message>
        <source>Don&apos;t Add</source>
        <translation>Non aggiungere</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Do not schedule capture</source>
        <translation>Non &amp;pianificare la registrazione</translation>
    </message>
    <message>
        <source>Stop capture after</source>
        <translation>&amp;Interrompi la registrazione dopo</translation>
    </message>
    <message>
        <source>Record on schedule</source>
        <translation>&amp;Registra secondo la pianificazione</translation>
    </message>
    <message>
        <source>Add record event</source>
        <translation>Aggiungi registrazione</translation>
    </message>
    <message>
        <source>Capture duration in limited capture:</source>
        <translation>&amp;Durata della registrazione:</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>When capture ends:</source>
        <translation>Al &amp;termine della registrazione:</translation>
    </message>
</context>
<context>
    <name>ScheduleRecordTableWidget</name>
    <message>
        <source>Task </source>
        <translation>Attività </translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome file</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durata</translation>
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
        <translation>Elimina</translation>
    </message>
    <message>
        <source>The task will be permanently deleted from the recording schedule. Are you sure you want to delete the task?</source>
        <translation>L’attività verrà eliminata definitivamente dalla pianificazione. Eliminarla?</translation>
    </message>
    <message>
        <source>Always delete</source>
        <translation>Elimina sempre</translation>
    </message>
</context>
<context>
    <name>SettingsStore</name>
    <message>
        <source>The settings file %1 is not a file.</source>
        <translation>Il file delle impostazioni %1 non è un file.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder is missing and cannot be created either.</source>
        <translation>Impossibile creare il file delle impostazioni %1: la sua cartella non esiste e non può essere creata.</translation>
    </message>
    <message>
        <source>The settings file %1 is in use by another process.</source>
        <translation>Il file delle impostazioni %1 è usato da un altro processo.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder cannot be written to.</source>
        <translation>Impossibile creare il file delle impostazioni %1: la sua cartella non è scrivibile.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2</source>
        <translation>Impossibile leggere il file delle impostazioni %1: %2</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>Il file delle impostazioni %1 è danneggiato e non può essere conservato con un altro nome: %2</translation>
    </message>
    <message>
        <source>The settings file could not be understood, so the defaults are in use. What it held is kept in %1.</source>
        <translation>Il file delle impostazioni non è comprensibile, perciò si usano i valori predefiniti. Il suo contenuto è conservato in %1.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. Tasks left out: %2. What the file held is kept in %1.</source>
        <translation>Alcune impostazioni non sono utilizzabili. Attività tralasciate: %2. Il contenuto del file è conservato in %1.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. What the file held is kept in %1.</source>
        <translation>Alcune impostazioni non sono utilizzabili. Il contenuto del file è conservato in %1.</translation>
    </message>
    <message>
        <source>Another program has changed the settings file. Its version is kept in %1; the settings shown here stay in use.</source>
        <translation>Un altro programma ha modificato il file delle impostazioni. La sua versione è conservata in %1; le impostazioni mostrate qui restano in uso.</translation>
    </message>
    <message>
        <source>Only a part of the file could be read</source>
        <translation>È stato possibile leggere solo una parte del file</translation>
    </message>
    <message>
        <source>%2: your changes are not saved in %1</source>
        <translation>%2: le modifiche non sono salvate in %1</translation>
    </message>
    <message>
        <source>The file is in use by another process</source>
        <translation>Il file è usato da un altro processo</translation>
    </message>
    <message>
        <source>The folder cannot be written to</source>
        <translation>Non è possibile scrivere nella cartella</translation>
    </message>
</context>
</TS>
