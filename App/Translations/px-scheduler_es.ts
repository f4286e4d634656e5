<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Application</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>cannot copy the settings file %1: %2</source>
        <translation>no se puede copiar el archivo de configuración %1: %2</translation>
    </message>
    <message>
        <source>the program does not run on these settings</source>
        <translation>el programa no está en ejecución con esta configuración</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>Cannot delete %1</source>
        <translation>No se puede eliminar: %1</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>No se puede escribir: %1</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Keep the settings in &lt;file&gt; instead of the platform&apos;s configuration folder.</source>
        <translation>Guardar la configuración en &lt;file&gt; en lugar de la carpeta de configuración del sistema.</translation>
    </message>
    <message>
        <source>Use &lt;language&gt; in this run, for example de or pt_BR.</source>
        <translation>Usar &lt;language&gt; en esta ejecución, por ejemplo de o pt_BR.</translation>
    </message>
    <message>
        <source>Use the theme light or dark in this run.</source>
        <translation>Usar el tema light o dark en esta ejecución.</translation>
    </message>
    <message>
        <source>Walk through the window on a copy of the settings (of a sample without --settings), write a picture of each state into &lt;folder&gt;, and end.</source>
        <translation>Recorrer la ventana con una copia de la configuración (de un ejemplo sin --settings), guardar una imagen de cada estado en &lt;folder&gt; y terminar.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Mostrar esta ayuda.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostrar la versión.</translation>
    </message>
    <message>
        <source>%1: %2 (try --help)</source>
        <translation>%1: %2 (pruebe --help)</translation>
    </message>
    <message>
        <source>option --%1 needs a value</source>
        <translation>la opción --%1 necesita un valor</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>argumento inesperado «%1»</translation>
    </message>
    <message>
        <source>unknown theme &apos;%1&apos;; the themes are light and dark</source>
        <translation>tema desconocido «%1»; los temas son light y dark</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;; the languages are %2</source>
        <translation>idioma desconocido «%1»; los idiomas son %2</translation>
    </message>
    <message>
        <source>Choose how screen recordings are timed.</source>
        <translation>Elija cuándo empiezan y terminan las grabaciones de pantalla.</translation>
    </message>
    <message>
        <source>Start recording, in the program that runs already if there is one.</source>
        <translation>Iniciar la grabación, en el programa que ya se ejecuta si lo hay.</translation>
    </message>
    <message>
        <source>Stop the recording of the program that runs already.</source>
        <translation>Detener la grabación del programa que ya se ejecuta.</translation>
    </message>
    <message>
        <source>Pause the recording of the program that runs already, or go on with it.</source>
        <translation>Pausar la grabación del programa que ya se ejecuta, o reanudarla.</translation>
    </message>
    <message>
        <source>End the program that runs already, without a question.</source>
        <translation>Terminar el programa que ya se ejecuta, sin preguntar.</translation>
    </message>
    <message>
        <source>Start without a window.</source>
        <translation>Iniciar sin ventana.</translation>
    </message>
    <message>
        <source>options --%1 and --%2 cannot be used together</source>
        <translation>las opciones --%1 y --%2 no se pueden usar juntas</translation>
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
        <translation>Próxima: %1, en cuanto sea posible</translation>
    </message>
    <message>
        <source>Next: %1 on %2</source>
        <translation>Próxima: %1 el %2</translation>
    </message>
    <message>
        <source>Next: %1 in %2</source>
        <translation>Próxima: %1 en %2</translation>
    </message>
    <message>
        <source>The recording starts</source>
        <translation>Comienza la grabación</translation>
    </message>
    <message>
        <source>%1 is about to start</source>
        <translation>%1 está a punto de empezar</translation>
    </message>
    <message>
        <source>%1 starts in %2</source>
        <translation>%1 empieza en %2</translation>
    </message>
    <message>
        <source>%1 starts when this recording has ended</source>
        <translation>%1 empieza cuando termine esta grabación</translation>
    </message>
    <message>
        <source>This recording will end for %1</source>
        <translation>Esta grabación terminará para grabar %1</translation>
    </message>
    <message>
        <source>Ends in %1 for %2</source>
        <translation>Termina en %1 para grabar %2</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Grabando</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>En pausa: %1</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>Grabando: %1</translation>
    </message>
    <message>
        <source>%1 is being saved</source>
        <translation>%1 se está guardando</translation>
    </message>
</context>
<context>
    <name>NoticeText</name>
    <message>
        <source>%1 has been recorded</source>
        <translation>%1 se ha grabado</translation>
    </message>
    <message>
        <source>%1 has been stopped</source>
        <translation>%1 se ha detenido</translation>
    </message>
    <message>
        <source>%1 has been recorded in part</source>
        <translation>%1 se ha grabado en parte</translation>
    </message>
    <message>
        <source>%1 has not been recorded</source>
        <translation>%1 no se ha grabado</translation>
    </message>
    <message>
        <source>%1 could not be recorded</source>
        <translation>%1 no se ha podido grabar</translation>
    </message>
    <message>
        <source>Reason: %1.</source>
        <translation>Motivo: %1.</translation>
    </message>
    <message>
        <source>The file is %1.</source>
        <translation>El archivo es %1.</translation>
    </message>
    <message>
        <source>The rest is recorded into a new file.</source>
        <translation>El resto se graba en un archivo nuevo.</translation>
    </message>
    <message>
        <source>The computer cannot go to sleep</source>
        <translation>El equipo no se puede suspender</translation>
    </message>
    <message>
        <source>The computer cannot hibernate</source>
        <translation>El equipo no puede hibernar</translation>
    </message>
    <message>
        <source>The computer cannot be restarted</source>
        <translation>El equipo no se puede reiniciar</translation>
    </message>
    <message>
        <source>The computer cannot be shut down</source>
        <translation>El equipo no se puede apagar</translation>
    </message>
    <message>
        <source>The computer does not go to sleep</source>
        <translation>El equipo no se suspende</translation>
    </message>
    <message>
        <source>The computer does not hibernate</source>
        <translation>El equipo no hiberna</translation>
    </message>
    <message>
        <source>The computer is not restarted</source>
        <translation>El equipo no se reinicia</translation>
    </message>
    <message>
        <source>The computer is not shut down</source>
        <translation>El equipo no se apaga</translation>
    </message>
    <message>
        <source>%1 starts at %2.</source>
        <translation>%1 empieza a las %2.</translation>
    </message>
    <message>
        <source>%1 is about to be recorded</source>
        <translation>%1 se va a grabar en breve</translation>
    </message>
    <message>
        <source>The recording starts at %1.</source>
        <translation>La grabación empieza a las %1.</translation>
    </message>
    <message>
        <source>%1 is being recorded</source>
        <translation>%1 se está grabando</translation>
    </message>
    <message>
        <source>Your recording ends in a moment</source>
        <translation>Su grabación termina en un momento</translation>
    </message>
    <message>
        <source>%1 waits for its screen</source>
        <translation>%1 espera su pantalla</translation>
    </message>
    <message>
        <source>It is recorded as soon as the screen is connected.</source>
        <translation>Se graba en cuanto se conecte la pantalla.</translation>
    </message>
    <message>
        <source>%1 does not start</source>
        <translation>%1 no empieza</translation>
    </message>
    <message>
        <source>The disk is full: %1 are free.</source>
        <translation>El disco está lleno: quedan %1 libres.</translation>
    </message>
    <message>
        <source>The recording is finished.</source>
        <translation>La grabación ha terminado.</translation>
    </message>
    <message>
        <source>There is a problem with %1</source>
        <translation>Hay un problema con %1</translation>
    </message>
    <message>
        <source>your recording</source>
        <translation>su grabación</translation>
    </message>
    <message>
        <source>The disk may be too small for the scheduled tasks</source>
        <translation>Puede que el disco sea demasiado pequeño para las tareas programadas</translation>
    </message>
    <message>
        <source>They are likely to need %1, and %2 can be used.</source>
        <translation>Probablemente necesiten %1, y se pueden usar %2.</translation>
    </message>
    <message>
        <source>The program runs on</source>
        <translation>El programa sigue en ejecución</translation>
    </message>
    <message>
        <source>Its icon shows the window again. You can change this on the page &quot;General&quot;.</source>
        <translation>Su icono vuelve a mostrar la ventana. Puede cambiar esto en la página «General».</translation>
    </message>
    <message>
        <source>Not everything works on this desktop</source>
        <translation>No todo funciona en este escritorio</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Keep recording</source>
        <translation>Seguir grabando</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>The computer goes to sleep in %1</source>
        <translation>El equipo se suspende en %1</translation>
    </message>
    <message>
        <source>The computer hibernates in %1</source>
        <translation>El equipo hiberna en %1</translation>
    </message>
    <message>
        <source>The computer restarts in %1</source>
        <translation>El equipo se reinicia en %1</translation>
    </message>
    <message>
        <source>The computer shuts down in %1</source>
        <translation>El equipo se apaga en %1</translation>
    </message>
    <message>
        <source>Your recording</source>
        <translation>Su grabación</translation>
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
        <translation>empezó tarde</translation>
    </message>
    <message>
        <source>an earlier part of it broke off</source>
        <translation>una parte anterior se interrumpió</translation>
    </message>
    <message>
        <source>the recorder broke down</source>
        <translation>el grabador falló</translation>
    </message>
    <message>
        <source>the program ended unexpectedly</source>
        <translation>el programa terminó de forma inesperada</translation>
    </message>
    <message>
        <source>a task was due</source>
        <translation>era la hora de una tarea</translation>
    </message>
    <message>
        <source>the computer was shut down</source>
        <translation>el equipo se apagó</translation>
    </message>
    <message>
        <source>the computer was asleep</source>
        <translation>el equipo estaba suspendido</translation>
    </message>
    <message>
        <source>the program was not running</source>
        <translation>el programa no estaba en ejecución</translation>
    </message>
    <message>
        <source>the schedule was off</source>
        <translation>la programación estaba desactivada</translation>
    </message>
    <message>
        <source>the clock was set</source>
        <translation>se cambió la hora del reloj</translation>
    </message>
    <message>
        <source>another recording was running</source>
        <translation>había otra grabación en curso</translation>
    </message>
    <message>
        <source>the screen was not connected</source>
        <translation>la pantalla no estaba conectada</translation>
    </message>
    <message>
        <source>you skipped it</source>
        <translation>usted la omitió</translation>
    </message>
    <message>
        <source>the recorder is not installed</source>
        <translation>el grabador no está instalado</translation>
    </message>
    <message>
        <source>the disk was nearly full</source>
        <translation>el disco estaba casi lleno</translation>
    </message>
    <message>
        <source>the disk was full</source>
        <translation>el disco estaba lleno</translation>
    </message>
    <message>
        <source>the display was gone</source>
        <translation>la pantalla dejó de estar disponible</translation>
    </message>
    <message>
        <source>the program was ended</source>
        <translation>se cerró el programa</translation>
    </message>
    <message>
        <source>the file existed already</source>
        <translation>el archivo ya existía</translation>
    </message>
    <message>
        <source>the folder did not exist</source>
        <translation>la carpeta no existía</translation>
    </message>
    <message>
        <source>the folder could not be written to</source>
        <translation>no se podía escribir en la carpeta</translation>
    </message>
    <message>
        <source>the desktop did not allow it</source>
        <translation>el escritorio no lo permitió</translation>
    </message>
    <message>
        <source>no encoder works on this computer</source>
        <translation>ningún codificador funciona en este equipo</translation>
    </message>
    <message>
        <source>nothing was recorded</source>
        <translation>no se grabó nada</translation>
    </message>
    <message>
        <source>the conversion to MP4 failed</source>
        <translation>la conversión a MP4 falló</translation>
    </message>
    <message>
        <source>the recorder reported an error</source>
        <translation>el grabador comunicó un error</translation>
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
        <translation>Detenida por usted</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Perdida</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fallida</translation>
    </message>
    <message>
        <source>Recording now</source>
        <translation>Grabando ahora</translation>
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
        <translation>Área de la pantalla</translation>
    </message>
    <message>
        <source>Draw the area with the mouse, or move it with the arrow keys and resize it with Shift and the arrow keys. Enter takes it, Escape cancels.</source>
        <translation>Dibuje el área con el ratón, o muévala con las teclas de flecha y cambie su tamaño con Mayús y las teclas de flecha. Intro la acepta, Escape cancela.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::CalendarLook</name>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::DesktopNotices</name>
    <message>
        <source>Show the window</source>
        <translation>Mostrar la ventana</translation>
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
        <translation>&amp;Carpeta de grabaciones:</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>Carpeta de grabaciones</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Examinar…</translation>
    </message>
    <message>
        <source>Browse for the folder for recordings</source>
        <translation>Examinar para elegir la carpeta de grabaciones</translation>
    </message>
    <message>
        <source>Enter the full path of a folder.</source>
        <translation>Escriba la ruta completa de una carpeta.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Es un archivo, no una carpeta.</translation>
    </message>
    <message>
        <source>You are not allowed to write into this folder.</source>
        <translation>No tiene permiso para escribir en esta carpeta.</translation>
    </message>
    <message>
        <source>The free space of this folder is unknown.</source>
        <translation>Se desconoce el espacio libre de esta carpeta.</translation>
    </message>
    <message>
        <source>Free space: %1</source>
        <translation>Espacio libre: %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Choose where recordings are kept.</source>
        <translation>Elija dónde se guardan las grabaciones.</translation>
    </message>
    <message>
        <source>This folder cannot be created.</source>
        <translation>No se puede crear esta carpeta.</translation>
    </message>
    <message>
        <source>This folder does not exist yet. It will be created with the first recording.</source>
        <translation>Esta carpeta todavía no existe. Se creará con la primera grabación.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::GeneralPage</name>
    <message>
        <source>In this run: %1 (chosen at the start)</source>
        <translation>En esta ejecución: %1 (elegido al iniciar)</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>Idio&amp;ma:</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <translation>Como el sistema (%1)</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;Tema:</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Como el sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>&amp;Ask all questions again</source>
        <translation>&amp;Volver a preguntar todo</translation>
    </message>
    <message>
        <source>Open settings &amp;folder</source>
        <translation>Abrir la &amp;carpeta de configuración</translation>
    </message>
    <message>
        <source>&amp;Open log</source>
        <translation>Abrir el &amp;registro</translation>
    </message>
    <message>
        <source>There is no log of this run.</source>
        <translation>No hay ningún registro de esta ejecución.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>No se puede abrir: %1</translation>
    </message>
    <message>
        <source>Some questions are no longer asked.</source>
        <translation>Algunas preguntas ya no se hacen porque así lo eligió.</translation>
    </message>
    <message>
        <source>Every question is asked, for example before a task is deleted.</source>
        <translation>Se hacen todas las preguntas, por ejemplo antes de eliminar una tarea.</translation>
    </message>
    <message>
        <source>All questions will be asked again</source>
        <translation>Se vuelven a hacer todas las preguntas</translation>
    </message>
    <message>
        <source>When something goes wrong, your settings and the log of this run help to find out why.</source>
        <translation>Si algo va mal, su configuración y el registro de esta ejecución ayudan a averiguar el motivo.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Choose language and theme.</source>
        <translation>Elija el idioma y el aspecto de la aplicación.</translation>
    </message>
    <message>
        <source>Start &amp;with the desktop</source>
        <translation>I&amp;niciar con la sesión</translation>
    </message>
    <message>
        <source>&amp;Keep running when the window is closed</source>
        <translation>Seguir &amp;funcionando al cerrar la ventana</translation>
    </message>
    <message>
        <source>While tasks are pending or a recording runs, the program stays in the tray. Where there is none, its window is minimized.</source>
        <translation>Mientras haya tareas pendientes o una grabación en curso, el programa permanece en la bandeja del sistema. Donde no la hay, su ventana se minimiza.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::MainWindow</name>
    <message>
        <source>Recording Scheduler</source>
        <translation>Programador de grabaciones</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>Páginas de configuración</translation>
    </message>
    <message>
        <source>Your changes are saved again.</source>
        <translation>Los cambios vuelven a guardarse.</translation>
    </message>
    <message>
        <source>Your changes could not be saved. They will be lost if you close the window now.</source>
        <translation>No se pudieron guardar los cambios. Se perderán si cierra la ventana ahora.</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>Cerrar de todos modos</translation>
    </message>
    <message>
        <source>The recording that is running will be stopped.</source>
        <translation>La grabación en curso se detendrá.</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) are still to come. They will not be recorded when the program is not running.</source>
        <translation>
            <numerusform>Queda %n tarea pendiente. No se grabará si el programa no está en ejecución.</numerusform>
            <numerusform>Quedan %n tareas pendientes. No se grabarán si el programa no está en ejecución.</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close notice</source>
        <translation>Cerrar aviso</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelAnnouncer</name>
    <message>
        <source>Task added: %1</source>
        <translation>Tarea añadida: %1</translation>
    </message>
    <message>
        <source>All tasks deleted</source>
        <translation>Todas las tareas eliminadas</translation>
    </message>
    <message>
        <source>Task deleted: %1</source>
        <translation>Tarea eliminada: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelAreaTip</name>
    <message>
        <source>No area has been selected yet: all of screen 1 (%1) is recorded. You can select an area on the page &quot;Recording&quot;.</source>
        <translation>Todavía no se ha seleccionado ningún área: se graba toda la pantalla 1 (%1). Puede seleccionar un área en la página «Grabación».</translation>
    </message>
    <message>
        <source>Records %1, the area that is selected on the page &quot;Recording&quot;.</source>
        <translation>Graba %1, el área seleccionada en la página «Grabación».</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelNameGuard</name>
    <message>
        <source>A name cannot contain line breaks or other control characters.</source>
        <translation>Un nombre no puede contener saltos de línea ni otros caracteres de control.</translation>
    </message>
    <message>
        <source>A name cannot contain: %1</source>
        <translation>Un nombre no puede contener: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelTaskDetails</name>
    <message>
        <source>This task is over.</source>
        <translation>Esta tarea ya ha pasado.</translation>
    </message>
    <message>
        <source>Afterwards: %1</source>
        <translation>Después: %1</translation>
    </message>
    <message>
        <source>Ends at %1</source>
        <translation>Termina a las %1</translation>
    </message>
    <message>
        <source>Ends on the next day at %1</source>
        <translation>Termina al día siguiente a las %1</translation>
    </message>
    <message>
        <source>Records screen %1, which is not connected</source>
        <translation>Graba la pantalla %1, que no está conectada</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>Graba: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PictureCard</name>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>&amp;Fotogramas por segundo:</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>&amp;Calidad:</translation>
    </message>
    <message>
        <source>Fil&amp;e format:</source>
        <translation>Formato de archi&amp;vo:</translation>
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
        <translation>Grabar el &amp;puntero del ratón</translation>
    </message>
    <message>
        <source>Small: about %1 an hour</source>
        <translation>Baja: unos %1 por hora</translation>
    </message>
    <message>
        <source>Normal: about %1 an hour</source>
        <translation>Normal: unos %1 por hora</translation>
    </message>
    <message>
        <source>High: about %1 an hour</source>
        <translation>Alta: unos %1 por hora</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingControl</name>
    <message>
        <source>A task is about to start.</source>
        <translation>Una tarea está a punto de empezar.</translation>
    </message>
    <message>
        <source>The desktop shows no notifications. The page &quot;Recordings&quot; tells what was recorded, and what was not.</source>
        <translation>El escritorio no muestra notificaciones. La página «Grabaciones» indica qué se ha grabado y qué no.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingFooter</name>
    <message>
        <source>Recording</source>
        <translation>Grabando</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>Grabado</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>Tamaño del archivo</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Espacio libre</translation>
    </message>
    <message>
        <source>Dropped frames</source>
        <translation>Fotogramas perdidos</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;Iniciar grabación</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>F&amp;inalizar</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>&amp;Omitir</translation>
    </message>
    <message>
        <source>Skip this task</source>
        <translation>Omitir esta tarea</translation>
    </message>
    <message>
        <source>&amp;Keep recording</source>
        <translation>&amp;Seguir grabando</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Cance&amp;lar</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>Ah&amp;ora</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>hasta %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 libres</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s) dropped</source>
        <translation>
            <numerusform>%n fotograma perdido</numerusform>
            <numerusform>%n fotogramas perdidos</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>Rean&amp;udar</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>Pa&amp;usar</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingPage</name>
    <message>
        <source>Recording</source>
        <translation>Grabación</translation>
    </message>
    <message>
        <source>Choose what is recorded, and how.</source>
        <translation>Elija qué se graba y cómo.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsModel</name>
    <message>
        <source>the file is gone</source>
        <translation>el archivo ya no existe</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsPage</name>
    <message>
        <source>Recordings</source>
        <translation>Grabaciones</translation>
    </message>
    <message>
        <source>What was recorded, and what was not.</source>
        <translation>Lo que se grabó y lo que no.</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. Start a recording with the button below, or plan one on the page Schedule; it is listed here then.</source>
        <translation>Todavía no se ha grabado nada. Inicie una grabación con el botón de abajo o programe una en la página «Programación»; después aparecerá aquí.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>Mostrar en la &amp;carpeta</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparar</translation>
    </message>
    <message>
        <source>Adds what a crash has kept from the end of the file, so that players can seek in it.</source>
        <translation>Añade lo que un fallo impidió escribir al final del archivo, para que los reproductores puedan desplazarse por él.</translation>
    </message>
    <message>
        <source>Move to &amp;trash</source>
        <translation>Mover a la &amp;papelera</translation>
    </message>
    <message>
        <source>Remove from &amp;list</source>
        <translation>&amp;Quitar de la lista</translation>
    </message>
    <message>
        <source>There is no file of this recording.</source>
        <translation>Esta grabación no tiene archivo.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>No se puede abrir: %1</translation>
    </message>
    <message>
        <source>Repairing: %1</source>
        <translation>Reparando: %1</translation>
    </message>
    <message>
        <source>Repaired: %1</source>
        <translation>Reparada: %1</translation>
    </message>
    <message>
        <source>%1 could not be repaired</source>
        <translation>%1 no se ha podido reparar</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; will be moved to the trash. Are you sure?</source>
        <translation>La grabación «%1» se moverá a la papelera. ¿Seguro que desea continuar?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; will be removed from the list. Are you sure?</source>
        <translation>«%1» se quitará de la lista. ¿Seguro que desea continuar?</translation>
    </message>
    <message>
        <source>Move to trash</source>
        <translation>Mover a la papelera</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash</source>
        <translation>%1 no se ha podido mover a la papelera</translation>
    </message>
    <message>
        <source>Removed from the list: %1</source>
        <translation>Quitada de la lista: %1</translation>
    </message>
    <message>
        <source>Moved to the trash: %1</source>
        <translation>Movida a la papelera: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>Programación</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>Programación de grabaciones</translation>
    </message>
    <message>
        <source>Choose when a recording stops by itself, and which recordings start by themselves.</source>
        <translation>Elija cuándo se detiene sola una grabación y qué grabaciones empiezan solas.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::ScreenshotTour</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>no se puede crear la carpeta %1</translation>
    </message>
    <message>
        <source>cannot reach: %1</source>
        <translation>no se puede alcanzar: %1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>no se puede escribir %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundCard</name>
    <message>
        <source>Record the sound of:</source>
        <translation>Grabar el sonido de:</translation>
    </message>
    <message>
        <source>Sound devices</source>
        <translation>Dispositivos de sonido</translation>
    </message>
    <message>
        <source>All sound in one trac&amp;k</source>
        <translation>Todo el sonido en una pis&amp;ta</translation>
    </message>
    <message>
        <source>Otherwise each device has a track of its own, for editing. Most players play only the first.</source>
        <translation>Si no, cada dispositivo tiene su propia pista, para editarla. La mayoría de los reproductores solo reproducen la primera.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceList</name>
    <message>
        <source>Looking for sound devices...</source>
        <translation>Buscando dispositivos de sonido…</translation>
    </message>
    <message>
        <source>The sound devices of this computer cannot be listed.</source>
        <translation>No se puede obtener la lista de dispositivos de sonido de este equipo.</translation>
    </message>
    <message>
        <source>There are no sound devices on this computer.</source>
        <translation>Este equipo no tiene dispositivos de sonido.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceRow</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (no conectado)</translation>
    </message>
    <message>
        <source>Level of %1</source>
        <translation>Nivel de %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SourceCard</name>
    <message>
        <source>Record a s&amp;creen</source>
        <translation>&amp;Grabar una pantalla</translation>
    </message>
    <message>
        <source>Screen that is recorded</source>
        <translation>Pantalla que se graba</translation>
    </message>
    <message>
        <source>Record the selected &amp;area</source>
        <translation>G&amp;rabar el área seleccionada</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>I&amp;zquierda:</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>Arri&amp;ba:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>A&amp;ncho:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Alto:</translation>
    </message>
    <message>
        <source>Left edge of the area in pixels</source>
        <translation>Borde izquierdo del área en píxeles</translation>
    </message>
    <message>
        <source>Top edge of the area in pixels</source>
        <translation>Borde superior del área en píxeles</translation>
    </message>
    <message>
        <source>Width of the area in pixels</source>
        <translation>Ancho del área en píxeles</translation>
    </message>
    <message>
        <source>Height of the area in pixels</source>
        <translation>Alto del área en píxeles</translation>
    </message>
    <message>
        <source>Choose o&amp;n the screen...</source>
        <translation>&amp;Elegir en la pantalla…</translation>
    </message>
    <message>
        <source>Show &amp;outline</source>
        <translation>&amp;Mostrar contorno</translation>
    </message>
    <message>
        <source>Screen %1, %2</source>
        <translation>Pantalla %1, %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>Screen %1 (not connected)</source>
        <translation>Pantalla %1 (no conectada)</translation>
    </message>
    <message>
        <source>No area has been selected yet: all of screen 1 is recorded instead, also by tasks with &quot;Selected area&quot;.</source>
        <translation>Todavía no se ha seleccionado ningún área: se graba en su lugar toda la pantalla 1, también en las tareas con «Área seleccionada».</translation>
    </message>
    <message>
        <source>Tasks with &quot;Selected area&quot; record this area, too.</source>
        <translation>Las tareas con «Área seleccionada» también graban esta área.</translation>
    </message>
    <message>
        <source>The screen that is to be recorded is not connected.</source>
        <translation>La pantalla que se debe grabar no está conectada.</translation>
    </message>
    <message>
        <source>The selected area is not on any screen.</source>
        <translation>El área seleccionada no está en ninguna pantalla.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::TrayIcon</name>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;Iniciar grabación</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Finalizar</translation>
    </message>
    <message>
        <source>Show &amp;window</source>
        <translation>Mostrar la &amp;ventana</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>Sin grabar</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Grabando</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Reanudar</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pausar</translation>
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
        <translation>Vea y escuche cómo queda una grabación con esta configuración.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Try fi&amp;ve seconds</source>
        <translation>Probar cinco segun&amp;dos</translation>
    </message>
    <message>
        <source>Trial recording</source>
        <translation>Grabación de prueba</translation>
    </message>
    <message>
        <source>The trial recording was cancelled.</source>
        <translation>La grabación de prueba se ha cancelado.</translation>
    </message>
    <message>
        <source>The trial recording was made, but there is no program that opens it: %1</source>
        <translation>La grabación de prueba se ha realizado, pero ningún programa puede abrirla: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened. The recorder says: %1</source>
        <translation>La grabación de prueba se ha realizado y abierto. El grabador indica: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened.</source>
        <translation>La grabación de prueba se ha realizado y abierto.</translation>
    </message>
    <message>
        <source>The recorder px-recorder cannot be started. Is it installed completely?</source>
        <translation>No se puede iniciar el grabador px-recorder. ¿Está instalado por completo?</translation>
    </message>
    <message>
        <source>Nothing could be recorded. The recorder says: %1</source>
        <translation>No se pudo grabar nada. El grabador indica: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::Inhibitors</name>
    <message>
        <source>The computer cannot be kept from going to sleep while it records.</source>
        <translation>No se puede impedir que el equipo se suspenda mientras graba.</translation>
    </message>
    <message>
        <source>The computer cannot be kept from being shut down before the file is closed.</source>
        <translation>No se puede impedir que el equipo se apague antes de que se cierre el archivo.</translation>
    </message>
    <message>
        <source>The screen cannot be kept from going dark while it is recorded.</source>
        <translation>No se puede impedir que la pantalla se apague mientras se graba.</translation>
    </message>
    <message>
        <source>A recording is running.</source>
        <translation>Hay una grabación en curso.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecorderProcess</name>
    <message>
        <source>%1 is of another version</source>
        <translation>%1 es de otra versión</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>No se puede iniciar %1: %2</translation>
    </message>
    <message>
        <source>The recorder crashed (signal %1).</source>
        <translation>El grabador falló (señal %1).</translation>
    </message>
    <message>
        <source>The recorder ended unexpectedly (exit status %1).</source>
        <translation>El grabador terminó de forma inesperada (código de salida %1).</translation>
    </message>
    <message>
        <source>The recorder did not start in time.</source>
        <translation>El grabador no se inició a tiempo.</translation>
    </message>
    <message>
        <source>The recorder stopped responding.</source>
        <translation>El grabador dejó de responder.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecordingsList</name>
    <message>
        <source>The list of recordings %1 cannot be read: %2</source>
        <translation>No se puede leer la lista de grabaciones %1: %2</translation>
    </message>
    <message>
        <source>The list of recordings %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>La lista de grabaciones %1 está dañada y no se puede conservar con otro nombre: %2</translation>
    </message>
    <message>
        <source>Some entries of the list of recordings could not be used. What the file held is kept in %1.</source>
        <translation>No se pudieron usar algunas entradas de la lista de grabaciones. El contenido del archivo se conserva en %1.</translation>
    </message>
    <message>
        <source>The list of recordings could not be understood, so it begins anew. What it held is kept in %1.</source>
        <translation>No se pudo interpretar la lista de grabaciones, por lo que empieza de nuevo. Su contenido se conserva en %1.</translation>
    </message>
    <message>
        <source>%1: the list of recordings is not saved in %2</source>
        <translation>%1: la lista de grabaciones no se ha guardado en %2</translation>
    </message>
</context>
</TS>
