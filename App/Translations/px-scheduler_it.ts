<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Application</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>cannot copy the settings file %1: %2</source>
        <translation>impossibile copiare il file delle impostazioni %1: %2</translation>
    </message>
</context>
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
    <name>CommandLine</name>
    <message>
        <source>Keep the settings in &lt;file&gt; instead of the platform&apos;s configuration folder.</source>
        <translation>Conserva le impostazioni in &lt;file&gt; anziché nella cartella di configurazione del sistema.</translation>
    </message>
    <message>
        <source>Use &lt;language&gt; in this run, for example de or pt_BR.</source>
        <translation>Usa &lt;language&gt; in questa esecuzione, per esempio de o pt_BR.</translation>
    </message>
    <message>
        <source>Use the theme light or dark in this run.</source>
        <translation>Usa il tema light o dark in questa esecuzione.</translation>
    </message>
    <message>
        <source>Walk through the window on a copy of the settings (of a sample without --settings), write a picture of each state into &lt;folder&gt;, and end.</source>
        <translation>Percorre la finestra su una copia delle impostazioni (di un esempio senza --settings), scrive un’immagine di ogni stato in &lt;folder&gt; e termina.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Mostra questo aiuto.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostra la versione.</translation>
    </message>
    <message>
        <source>%1: %2 (try --help)</source>
        <translation>%1: %2 (prova --help)</translation>
    </message>
    <message>
        <source>option --%1 needs a value</source>
        <translation>l’opzione --%1 richiede un valore</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>argomento inatteso «%1»</translation>
    </message>
    <message>
        <source>unknown theme &apos;%1&apos;; the themes are light and dark</source>
        <translation>tema sconosciuto «%1»; i temi sono light e dark</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;; the languages are %2</source>
        <translation>lingua sconosciuta «%1»; le lingue sono %2</translation>
    </message>
    <message>
        <source>Choose how screen recordings are timed.</source>
        <translation>Scegli quando iniziano e finiscono le registrazioni dello schermo.</translation>
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
        <translation>Registra l’area scelta nelle impostazioni; se non ne è stata scelta nessuna, tutto il primo schermo.
Questa versione non registra ancora.</translation>
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
<context>
    <name>Zentor::Desktop::CalendarLook</name>
    <message>
        <source>Today</source>
        <translation>Oggi</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::FilesPage</name>
    <message>
        <source>&amp;Folder for recordings:</source>
        <translation>&amp;Cartella delle registrazioni:</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>Cartella delle registrazioni</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Sfoglia…</translation>
    </message>
    <message>
        <source>Browse for the folder for recordings</source>
        <translation>Sfoglia per scegliere la cartella delle registrazioni</translation>
    </message>
    <message>
        <source>Enter the full path of a folder.</source>
        <translation>Inserisci il percorso completo di una cartella.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Questo è un file, non una cartella.</translation>
    </message>
    <message>
        <source>You are not allowed to write into this folder.</source>
        <translation>Non hai l’autorizzazione a scrivere in questa cartella.</translation>
    </message>
    <message>
        <source>The free space of this folder is unknown.</source>
        <translation>Lo spazio libero di questa cartella non è noto.</translation>
    </message>
    <message>
        <source>Free space: %1</source>
        <translation>Spazio libero: %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Choose where recordings are kept.</source>
        <translation>Scegli dove conservare le registrazioni.</translation>
    </message>
    <message>
        <source>This folder cannot be created.</source>
        <translation>Non è possibile creare questa cartella.</translation>
    </message>
    <message>
        <source>This folder does not exist yet. It will be created with the first recording.</source>
        <translation>Questa cartella non esiste ancora. Verrà creata con la prima registrazione.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::GeneralPage</name>
    <message>
        <source>In this run: %1 (chosen at the start)</source>
        <translation>In questa esecuzione: %1 (scelto all’avvio)</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Lingua:</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <translation>Come il sistema (%1)</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;Tema:</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Come il sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Chiaro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Scuro</translation>
    </message>
    <message>
        <source>&amp;Ask all questions again</source>
        <translation>&amp;Riproponi tutte le domande</translation>
    </message>
    <message>
        <source>Open settings &amp;folder</source>
        <translation>Apri la &amp;cartella delle impostazioni</translation>
    </message>
    <message>
        <source>&amp;Open log</source>
        <translation>Apri il re&amp;gistro</translation>
    </message>
    <message>
        <source>There is no log of this run.</source>
        <translation>Non c’è alcun registro di questa esecuzione.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>Impossibile aprire: %1</translation>
    </message>
    <message>
        <source>Some questions are no longer asked.</source>
        <translation>Alcune domande non vengono più poste, come hai scelto.</translation>
    </message>
    <message>
        <source>Every question is asked, for example before a task is deleted.</source>
        <translation>Vengono poste tutte le domande, per esempio prima di eliminare un’attività.</translation>
    </message>
    <message>
        <source>All questions will be asked again</source>
        <translation>Tutte le domande vengono riproposte</translation>
    </message>
    <message>
        <source>When something goes wrong, your settings and the log of this run help to find out why.</source>
        <translation>Se qualcosa non va, le impostazioni e il registro di questa esecuzione aiutano a capire perché.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Choose language and theme.</source>
        <translation>Scegli la lingua e l’aspetto dell’applicazione.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::MainWindow</name>
    <message>
        <source>Recording Scheduler</source>
        <translation>Pianificatore di registrazioni</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>Pagine delle impostazioni</translation>
    </message>
    <message>
        <source>Your changes are saved again.</source>
        <translation>Le modifiche vengono di nuovo salvate.</translation>
    </message>
    <message>
        <source>Your changes could not be saved. They will be lost if you close the window now.</source>
        <translation>Impossibile salvare le modifiche. Andranno perse se chiudi la finestra ora.</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>Chiudi comunque</translation>
    </message>
    <message>
        <source>Ready to record</source>
        <translation>Pronto per registrare</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;Avvia registrazione</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Close notice</source>
        <translation>Chiudi avviso</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelAnnouncer</name>
    <message>
        <source>Task added: %1</source>
        <translation>Attività aggiunta: %1</translation>
    </message>
    <message>
        <source>All tasks deleted</source>
        <translation>Tutte le attività eliminate</translation>
    </message>
    <message>
        <source>Task deleted: %1</source>
        <translation>Attività eliminata: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelNameGuard</name>
    <message>
        <source>A name cannot contain line breaks or other control characters.</source>
        <translation>Un nome non può contenere interruzioni di riga né altri caratteri di controllo.</translation>
    </message>
    <message>
        <source>A name cannot contain: %1</source>
        <translation>Un nome non può contenere: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelTaskDetails</name>
    <message>
        <source>This task is over.</source>
        <translation>Questa attività è passata.</translation>
    </message>
    <message>
        <source>Afterwards: %1</source>
        <translation>Poi: %1</translation>
    </message>
    <message>
        <source>Ends at %1</source>
        <translation>Termina alle %1</translation>
    </message>
    <message>
        <source>Ends on the next day at %1</source>
        <translation>Termina il giorno dopo alle %1</translation>
    </message>
    <message>
        <source>Records screen %1, which is not connected</source>
        <translation>Registra lo schermo %1, che non è collegato</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>Registra: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>Pianificazione</translation>
    </message>
    <message>
        <source>Choose when a recording stops or starts by itself. Your choice is kept; this version does not record yet.</source>
        <translation>Scegli quando una registrazione inizia o termina automaticamente. La scelta viene conservata; questa versione non registra ancora.</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>Pianificazione delle registrazioni</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::ScreenshotTour</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>impossibile creare la cartella %1</translation>
    </message>
    <message>
        <source>cannot reach: %1</source>
        <translation>impossibile raggiungere: %1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>impossibile scrivere %1</translation>
    </message>
</context>
</TS>
