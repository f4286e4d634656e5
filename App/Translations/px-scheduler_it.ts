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
    <message>
        <source>the program does not run on these settings</source>
        <translation>il programma non è in esecuzione con queste impostazioni</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>Cannot delete %1</source>
        <translation>Impossibile eliminare: %1</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>Impossibile scrivere: %1</translation>
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
    <message>
        <source>Start recording, in the program that runs already if there is one.</source>
        <translation>Avvia la registrazione, nel programma già in esecuzione se ce n’è uno.</translation>
    </message>
    <message>
        <source>Stop the recording of the program that runs already.</source>
        <translation>Ferma la registrazione del programma già in esecuzione.</translation>
    </message>
    <message>
        <source>Pause the recording of the program that runs already, or go on with it.</source>
        <translation>Mette in pausa la registrazione del programma già in esecuzione, o la riprende.</translation>
    </message>
    <message>
        <source>End the program that runs already, without a question.</source>
        <translation>Termina il programma già in esecuzione, senza chiedere.</translation>
    </message>
    <message>
        <source>Start without a window.</source>
        <translation>Avvia senza finestra.</translation>
    </message>
    <message>
        <source>options --%1 and --%2 cannot be used together</source>
        <translation>le opzioni --%1 e --%2 non si possono usare insieme</translation>
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
        <translation>Prossima: %1, appena possibile</translation>
    </message>
    <message>
        <source>Next: %1 on %2</source>
        <translation>Prossima: %1 il %2</translation>
    </message>
    <message>
        <source>Next: %1 in %2</source>
        <translation>Prossima: %1 tra %2</translation>
    </message>
    <message>
        <source>The recording starts</source>
        <translation>La registrazione inizia</translation>
    </message>
    <message>
        <source>%1 is about to start</source>
        <translation>%1 sta per iniziare</translation>
    </message>
    <message>
        <source>%1 starts in %2</source>
        <translation>%1 inizia tra %2</translation>
    </message>
    <message>
        <source>%1 starts when this recording has ended</source>
        <translation>%1 inizia al termine di questa registrazione</translation>
    </message>
    <message>
        <source>This recording will end for %1</source>
        <translation>Questa registrazione terminerà per registrare %1</translation>
    </message>
    <message>
        <source>Ends in %1 for %2</source>
        <translation>Termina tra %1 per registrare %2</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Registrazione in corso</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>In pausa: %1</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>Registrazione in corso: %1</translation>
    </message>
    <message>
        <source>%1 is being saved</source>
        <translation>Salvataggio in corso: %1</translation>
    </message>
</context>
<context>
    <name>NoticeText</name>
    <message>
        <source>%1 has been recorded</source>
        <translation>%1 è stata registrata</translation>
    </message>
    <message>
        <source>%1 has been stopped</source>
        <translation>%1 è stata fermata</translation>
    </message>
    <message>
        <source>%1 has been recorded in part</source>
        <translation>%1 è stata registrata in parte</translation>
    </message>
    <message>
        <source>%1 has not been recorded</source>
        <translation>%1 non è stata registrata</translation>
    </message>
    <message>
        <source>%1 could not be recorded</source>
        <translation>%1 non è riuscita</translation>
    </message>
    <message>
        <source>Reason: %1.</source>
        <translation>Motivo: %1.</translation>
    </message>
    <message>
        <source>The file is %1.</source>
        <translation>Il file è %1.</translation>
    </message>
    <message>
        <source>The rest is recorded into a new file.</source>
        <translation>Il resto viene registrato in un nuovo file.</translation>
    </message>
    <message>
        <source>The computer cannot go to sleep</source>
        <translation>Impossibile sospendere il computer</translation>
    </message>
    <message>
        <source>The computer cannot hibernate</source>
        <translation>Impossibile ibernare il computer</translation>
    </message>
    <message>
        <source>The computer cannot be restarted</source>
        <translation>Impossibile riavviare il computer</translation>
    </message>
    <message>
        <source>The computer cannot be shut down</source>
        <translation>Impossibile arrestare il computer</translation>
    </message>
    <message>
        <source>The computer does not go to sleep</source>
        <translation>Il computer non viene sospeso</translation>
    </message>
    <message>
        <source>The computer does not hibernate</source>
        <translation>Il computer non viene ibernato</translation>
    </message>
    <message>
        <source>The computer is not restarted</source>
        <translation>Il computer non viene riavviato</translation>
    </message>
    <message>
        <source>The computer is not shut down</source>
        <translation>Il computer non viene arrestato</translation>
    </message>
    <message>
        <source>%1 starts at %2.</source>
        <translation>%1 inizia alle %2.</translation>
    </message>
    <message>
        <source>%1 is about to be recorded</source>
        <translation>%1 sta per essere registrata</translation>
    </message>
    <message>
        <source>The recording starts at %1.</source>
        <translation>La registrazione inizia alle %1.</translation>
    </message>
    <message>
        <source>%1 is being recorded</source>
        <translation>%1 è in corso</translation>
    </message>
    <message>
        <source>Your recording ends in a moment</source>
        <translation>La tua registrazione termina tra un momento</translation>
    </message>
    <message>
        <source>%1 waits for its screen</source>
        <translation>%1 attende il suo schermo</translation>
    </message>
    <message>
        <source>It is recorded as soon as the screen is connected.</source>
        <translation>Viene registrata non appena lo schermo è collegato.</translation>
    </message>
    <message>
        <source>%1 does not start</source>
        <translation>%1 non inizia</translation>
    </message>
    <message>
        <source>The disk is full: %1 are free.</source>
        <translation>Il disco è pieno: %1 liberi.</translation>
    </message>
    <message>
        <source>The recording is finished.</source>
        <translation>La registrazione è terminata.</translation>
    </message>
    <message>
        <source>There is a problem with %1</source>
        <translation>C’è un problema con %1</translation>
    </message>
    <message>
        <source>your recording</source>
        <translation>la tua registrazione</translation>
    </message>
    <message>
        <source>The disk may be too small for the scheduled tasks</source>
        <translation>Il disco potrebbe essere troppo piccolo per le attività pianificate</translation>
    </message>
    <message>
        <source>They are likely to need %1, and %2 can be used.</source>
        <translation>Probabilmente richiedono %1, e se ne possono usare %2.</translation>
    </message>
    <message>
        <source>The program runs on</source>
        <translation>Il programma resta in esecuzione</translation>
    </message>
    <message>
        <source>Its icon shows the window again. You can change this on the page &quot;General&quot;.</source>
        <translation>La sua icona mostra di nuovo la finestra. Puoi cambiarlo nella pagina «Generale».</translation>
    </message>
    <message>
        <source>Not everything works on this desktop</source>
        <translation>Non tutto funziona su questo desktop</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Salta</translation>
    </message>
    <message>
        <source>Keep recording</source>
        <translation>Continua a registrare</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Mostra nella cartella</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Adesso</translation>
    </message>
    <message>
        <source>The computer goes to sleep in %1</source>
        <translation>Il computer viene sospeso tra %1</translation>
    </message>
    <message>
        <source>The computer hibernates in %1</source>
        <translation>Il computer viene ibernato tra %1</translation>
    </message>
    <message>
        <source>The computer restarts in %1</source>
        <translation>Il computer viene riavviato tra %1</translation>
    </message>
    <message>
        <source>The computer shuts down in %1</source>
        <translation>Il computer viene arrestato tra %1</translation>
    </message>
    <message>
        <source>Your recording</source>
        <translation>La tua registrazione</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
</context>
<context>
    <name>RecordingTexts</name>
    <message>
        <source>it started late</source>
        <translation>è iniziata in ritardo</translation>
    </message>
    <message>
        <source>an earlier part of it broke off</source>
        <translation>una parte precedente si è interrotta</translation>
    </message>
    <message>
        <source>the recorder broke down</source>
        <translation>il registratore si è arrestato in modo anomalo</translation>
    </message>
    <message>
        <source>the program ended unexpectedly</source>
        <translation>il programma è terminato in modo imprevisto</translation>
    </message>
    <message>
        <source>a task was due</source>
        <translation>era l’ora di un’attività</translation>
    </message>
    <message>
        <source>the computer was shut down</source>
        <translation>il computer è stato arrestato</translation>
    </message>
    <message>
        <source>the computer was asleep</source>
        <translation>il computer era sospeso</translation>
    </message>
    <message>
        <source>the program was not running</source>
        <translation>il programma non era in esecuzione</translation>
    </message>
    <message>
        <source>the schedule was off</source>
        <translation>la pianificazione era disattivata</translation>
    </message>
    <message>
        <source>the clock was set</source>
        <translation>l’orologio è stato regolato</translation>
    </message>
    <message>
        <source>another recording was running</source>
        <translation>era in corso un’altra registrazione</translation>
    </message>
    <message>
        <source>the screen was not connected</source>
        <translation>lo schermo non era collegato</translation>
    </message>
    <message>
        <source>you skipped it</source>
        <translation>l’hai saltata</translation>
    </message>
    <message>
        <source>the recorder is not installed</source>
        <translation>il registratore non è installato</translation>
    </message>
    <message>
        <source>the disk was nearly full</source>
        <translation>il disco era quasi pieno</translation>
    </message>
    <message>
        <source>the disk was full</source>
        <translation>il disco era pieno</translation>
    </message>
    <message>
        <source>the display was gone</source>
        <translation>lo schermo non era più disponibile</translation>
    </message>
    <message>
        <source>the program was ended</source>
        <translation>il programma è stato chiuso</translation>
    </message>
    <message>
        <source>the file existed already</source>
        <translation>il file esisteva già</translation>
    </message>
    <message>
        <source>the folder did not exist</source>
        <translation>la cartella non esisteva</translation>
    </message>
    <message>
        <source>the folder could not be written to</source>
        <translation>non era possibile scrivere nella cartella</translation>
    </message>
    <message>
        <source>the desktop did not allow it</source>
        <translation>il desktop non l’ha consentito</translation>
    </message>
    <message>
        <source>no encoder works on this computer</source>
        <translation>nessun codificatore funziona su questo computer</translation>
    </message>
    <message>
        <source>nothing was recorded</source>
        <translation>non è stato registrato nulla</translation>
    </message>
    <message>
        <source>the conversion to MP4 failed</source>
        <translation>la conversione in MP4 non è riuscita</translation>
    </message>
    <message>
        <source>the recorder reported an error</source>
        <translation>il registratore ha segnalato un errore</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Completa</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>Incompleta</translation>
    </message>
    <message>
        <source>Stopped by you</source>
        <translation>Fermata da te</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Mancata</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscita</translation>
    </message>
    <message>
        <source>Recording now</source>
        <translation>In registrazione</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::AreaOverlay</name>
    <message>
        <source>Area of the screen</source>
        <translation>Area dello schermo</translation>
    </message>
    <message>
        <source>Draw the area with the mouse, or move it with the arrow keys and resize it with Shift and the arrow keys. Enter takes it, Escape cancels.</source>
        <translation>Disegna l’area con il mouse, oppure spostala con i tasti freccia e ridimensionala con Maiusc e i tasti freccia. Invio la conferma, Esc annulla.</translation>
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
    <name>Zentor::Desktop::DesktopNotices</name>
    <message>
        <source>Show the window</source>
        <translation>Mostra la finestra</translation>
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
        <translation>%1: %2</translation>
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
    <message>
        <source>Start &amp;with the desktop</source>
        <translation>Avvia all’acce&amp;sso</translation>
    </message>
    <message>
        <source>&amp;Keep running when the window is closed</source>
        <translation>&amp;Mantieni in esecuzione alla chiusura della finestra</translation>
    </message>
    <message>
        <source>While tasks are pending or a recording runs, the program stays in the tray. Where there is none, its window is minimized.</source>
        <translation>Finché ci sono attività in attesa o una registrazione in corso, il programma resta nell’area di notifica. Dove questa manca, la sua finestra viene ridotta a icona.</translation>
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
        <source>The recording that is running will be stopped.</source>
        <translation>La registrazione in corso verrà fermata.</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) are still to come. They will not be recorded when the program is not running.</source>
        <translation>
            <numerusform>Rimane ancora %n attività. Non verrà registrata se il programma non è in esecuzione.</numerusform>
            <numerusform>Rimangono ancora %n attività. Non verranno registrate se il programma non è in esecuzione.</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
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
    <name>Zentor::Desktop::PanelAreaTip</name>
    <message>
        <source>No area has been selected yet: all of screen 1 (%1) is recorded. You can select an area on the page &quot;Recording&quot;.</source>
        <translation>Nessuna area è stata ancora selezionata: viene registrato tutto lo schermo 1 (%1). Puoi selezionare un’area nella pagina «Registrazione».</translation>
    </message>
    <message>
        <source>Records %1, the area that is selected on the page &quot;Recording&quot;.</source>
        <translation>Registra %1, l’area selezionata nella pagina «Registrazione».</translation>
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
    <name>Zentor::Desktop::PictureCard</name>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>Foto&amp;grammi al secondo:</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>&amp;Qualità:</translation>
    </message>
    <message>
        <source>Fil&amp;e format:</source>
        <translation>For&amp;mato del file:</translation>
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
        <translation>Registra il &amp;puntatore del mouse</translation>
    </message>
    <message>
        <source>Small: about %1 an hour</source>
        <translation>Bassa: circa %1 all’ora</translation>
    </message>
    <message>
        <source>Normal: about %1 an hour</source>
        <translation>Normale: circa %1 all’ora</translation>
    </message>
    <message>
        <source>High: about %1 an hour</source>
        <translation>Alta: circa %1 all’ora</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingControl</name>
    <message>
        <source>A task is about to start.</source>
        <translation>Un’attività sta per iniziare.</translation>
    </message>
    <message>
        <source>The desktop shows no notifications. The page &quot;Recordings&quot; tells what was recorded, and what was not.</source>
        <translation>Il desktop non mostra notifiche. La pagina «Registrazioni» indica che cosa è stato registrato e che cosa no.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingFooter</name>
    <message>
        <source>Recording</source>
        <translation>Registrazione in corso</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>Registrato</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>Dimensione del file</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Spazio libero</translation>
    </message>
    <message>
        <source>Dropped frames</source>
        <translation>Fotogrammi persi</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;Avvia registrazione</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Ferma</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>S&amp;alta</translation>
    </message>
    <message>
        <source>Skip this task</source>
        <translation>Salta questa attività</translation>
    </message>
    <message>
        <source>&amp;Keep recording</source>
        <translation>Continua a r&amp;egistrare</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>Ad&amp;esso</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>fine %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 liberi</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s) dropped</source>
        <translation>
            <numerusform>%n fotogramma perso</numerusform>
            <numerusform>%n fotogrammi persi</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>Ripr&amp;endi</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>P&amp;ausa</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingPage</name>
    <message>
        <source>Recording</source>
        <translation>Registrazione</translation>
    </message>
    <message>
        <source>Choose what is recorded, and how.</source>
        <translation>Scegli che cosa registrare e come.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsModel</name>
    <message>
        <source>the file is gone</source>
        <translation>il file non esiste più</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsPage</name>
    <message>
        <source>Recordings</source>
        <translation>Registrazioni</translation>
    </message>
    <message>
        <source>What was recorded, and what was not.</source>
        <translation>Che cosa è stato registrato e che cosa no.</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. Start a recording with the button below, or plan one on the page Schedule; it is listed here then.</source>
        <translation>Non è ancora stato registrato nulla. Avvia una registrazione con il pulsante qui sotto o pianificane una nella pagina «Pianificazione»; poi comparirà qui.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>A&amp;pri</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>Mostra nella &amp;cartella</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Ripara</translation>
    </message>
    <message>
        <source>Adds what a crash has kept from the end of the file, so that players can seek in it.</source>
        <translation>Aggiunge ciò che un arresto anomalo ha impedito di scrivere alla fine del file, così che i lettori possano spostarsi al suo interno.</translation>
    </message>
    <message>
        <source>Move to &amp;trash</source>
        <translation>&amp;Sposta nel cestino</translation>
    </message>
    <message>
        <source>Remove from &amp;list</source>
        <translation>Ri&amp;muovi dall’elenco</translation>
    </message>
    <message>
        <source>There is no file of this recording.</source>
        <translation>Non c’è alcun file di questa registrazione.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>Impossibile aprire: %1</translation>
    </message>
    <message>
        <source>Repairing: %1</source>
        <translation>Riparazione in corso: %1</translation>
    </message>
    <message>
        <source>Repaired: %1</source>
        <translation>Riparata: %1</translation>
    </message>
    <message>
        <source>%1 could not be repaired</source>
        <translation>Impossibile riparare: %1</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; will be moved to the trash. Are you sure?</source>
        <translation>La registrazione «%1» verrà spostata nel cestino. Continuare?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; will be removed from the list. Are you sure?</source>
        <translation>«%1» verrà rimossa dall’elenco. Continuare?</translation>
    </message>
    <message>
        <source>Move to trash</source>
        <translation>Sposta nel cestino</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash</source>
        <translation>Impossibile spostare nel cestino: %1</translation>
    </message>
    <message>
        <source>Removed from the list: %1</source>
        <translation>Rimossa dall’elenco: %1</translation>
    </message>
    <message>
        <source>Moved to the trash: %1</source>
        <translation>Spostata nel cestino: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>Pianificazione</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>Pianificazione delle registrazioni</translation>
    </message>
    <message>
        <source>Choose when a recording stops by itself, and which recordings start by themselves.</source>
        <translation>Scegli quando una registrazione si ferma da sola e quali registrazioni iniziano da sole.</translation>
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
<context>
    <name>Zentor::Desktop::SoundCard</name>
    <message>
        <source>Record the sound of:</source>
        <translation>Registra l’audio di:</translation>
    </message>
    <message>
        <source>Sound devices</source>
        <translation>Dispositivi audio</translation>
    </message>
    <message>
        <source>All sound in one trac&amp;k</source>
        <translation>&amp;Tutto l’audio in una traccia</translation>
    </message>
    <message>
        <source>Otherwise each device has a track of its own, for editing. Most players play only the first.</source>
        <translation>Altrimenti ogni dispositivo ha una traccia propria, per il montaggio. La maggior parte dei lettori riproduce solo la prima.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceList</name>
    <message>
        <source>Looking for sound devices...</source>
        <translation>Ricerca dei dispositivi audio…</translation>
    </message>
    <message>
        <source>The sound devices of this computer cannot be listed.</source>
        <translation>Impossibile elencare i dispositivi audio di questo computer.</translation>
    </message>
    <message>
        <source>There are no sound devices on this computer.</source>
        <translation>Non ci sono dispositivi audio su questo computer.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceRow</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (non collegato)</translation>
    </message>
    <message>
        <source>Level of %1</source>
        <translation>Livello di %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SourceCard</name>
    <message>
        <source>Record a s&amp;creen</source>
        <translation>Registra uno s&amp;chermo</translation>
    </message>
    <message>
        <source>Screen that is recorded</source>
        <translation>Schermo da registrare</translation>
    </message>
    <message>
        <source>Record the selected &amp;area</source>
        <translation>Registra l’area selezio&amp;nata</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>&amp;Sinistra:</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>A&amp;lto:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>Larg&amp;hezza:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>Alte&amp;zza:</translation>
    </message>
    <message>
        <source>Left edge of the area in pixels</source>
        <translation>Bordo sinistro dell’area in pixel</translation>
    </message>
    <message>
        <source>Top edge of the area in pixels</source>
        <translation>Bordo superiore dell’area in pixel</translation>
    </message>
    <message>
        <source>Width of the area in pixels</source>
        <translation>Larghezza dell’area in pixel</translation>
    </message>
    <message>
        <source>Height of the area in pixels</source>
        <translation>Altezza dell’area in pixel</translation>
    </message>
    <message>
        <source>Choose o&amp;n the screen...</source>
        <translation>Scegli s&amp;ullo schermo…</translation>
    </message>
    <message>
        <source>Show &amp;outline</source>
        <translation>M&amp;ostra contorno</translation>
    </message>
    <message>
        <source>Screen %1, %2</source>
        <translation>Schermo %1, %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>Screen %1 (not connected)</source>
        <translation>Schermo %1 (non collegato)</translation>
    </message>
    <message>
        <source>No area has been selected yet: all of screen 1 is recorded instead, also by tasks with &quot;Selected area&quot;.</source>
        <translation>Nessuna area è stata ancora selezionata: viene registrato invece tutto lo schermo 1, anche dalle attività con «Area selezionata».</translation>
    </message>
    <message>
        <source>Tasks with &quot;Selected area&quot; record this area, too.</source>
        <translation>Anche le attività con «Area selezionata» registrano quest’area.</translation>
    </message>
    <message>
        <source>The screen that is to be recorded is not connected.</source>
        <translation>Lo schermo da registrare non è collegato.</translation>
    </message>
    <message>
        <source>The selected area is not on any screen.</source>
        <translation>L’area selezionata non si trova su nessuno schermo.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::TrayIcon</name>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;Avvia registrazione</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Ferma</translation>
    </message>
    <message>
        <source>Show &amp;window</source>
        <translation>&amp;Mostra la finestra</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>Nessuna registrazione</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Registrazione in corso</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Riprendi</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pausa</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::TrialCard</name>
    <message>
        <source>See and hear what a recording with these settings is like.</source>
        <translation>Guarda e ascolta come risulta una registrazione con queste impostazioni.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Try fi&amp;ve seconds</source>
        <translation>Pro&amp;va cinque secondi</translation>
    </message>
    <message>
        <source>Trial recording</source>
        <translation>Registrazione di prova</translation>
    </message>
    <message>
        <source>The trial recording was cancelled.</source>
        <translation>La registrazione di prova è stata annullata.</translation>
    </message>
    <message>
        <source>The trial recording was made, but there is no program that opens it: %1</source>
        <translation>La registrazione di prova è stata eseguita, ma non c’è alcun programma che la apra: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened. The recorder says: %1</source>
        <translation>La registrazione di prova è stata eseguita e aperta. Il registratore segnala: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened.</source>
        <translation>La registrazione di prova è stata eseguita e aperta.</translation>
    </message>
    <message>
        <source>The recorder px-recorder cannot be started. Is it installed completely?</source>
        <translation>Impossibile avviare il registratore px-recorder. È installato completamente?</translation>
    </message>
    <message>
        <source>Nothing could be recorded. The recorder says: %1</source>
        <translation>Non è stato possibile registrare nulla. Il registratore segnala: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::Inhibitors</name>
    <message>
        <source>The computer cannot be kept from going to sleep while it records.</source>
        <translation>Impossibile evitare che il computer venga sospeso durante la registrazione.</translation>
    </message>
    <message>
        <source>The computer cannot be kept from being shut down before the file is closed.</source>
        <translation>Impossibile evitare che il computer venga arrestato prima della chiusura del file.</translation>
    </message>
    <message>
        <source>The screen cannot be kept from going dark while it is recorded.</source>
        <translation>Impossibile evitare che lo schermo si spenga mentre viene registrato.</translation>
    </message>
    <message>
        <source>A recording is running.</source>
        <translation>Una registrazione è in corso.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecorderProcess</name>
    <message>
        <source>%1 is of another version</source>
        <translation>%1 è di un’altra versione</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>Impossibile avviare %1: %2</translation>
    </message>
    <message>
        <source>The recorder crashed (signal %1).</source>
        <translation>Il registratore si è arrestato in modo anomalo (segnale %1).</translation>
    </message>
    <message>
        <source>The recorder ended unexpectedly (exit status %1).</source>
        <translation>Il registratore è terminato in modo imprevisto (codice di uscita %1).</translation>
    </message>
    <message>
        <source>The recorder did not start in time.</source>
        <translation>Il registratore non si è avviato in tempo.</translation>
    </message>
    <message>
        <source>The recorder stopped responding.</source>
        <translation>Il registratore non risponde più.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecordingsList</name>
    <message>
        <source>The list of recordings %1 cannot be read: %2</source>
        <translation>Impossibile leggere l’elenco delle registrazioni %1: %2</translation>
    </message>
    <message>
        <source>The list of recordings %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>L’elenco delle registrazioni %1 è danneggiato e non può essere conservato con un altro nome: %2</translation>
    </message>
    <message>
        <source>Some entries of the list of recordings could not be used. What the file held is kept in %1.</source>
        <translation>Alcune voci dell’elenco delle registrazioni non sono utilizzabili. Il contenuto del file è conservato in %1.</translation>
    </message>
    <message>
        <source>The list of recordings could not be understood, so it begins anew. What it held is kept in %1.</source>
        <translation>L’elenco delle registrazioni non è comprensibile, perciò ricomincia da capo. Il suo contenuto è conservato in %1.</translation>
    </message>
    <message>
        <source>%1: the list of recordings is not saved in %2</source>
        <translation>%1: l’elenco delle registrazioni non è salvato in %2</translation>
    </message>
</context>
</TS>
