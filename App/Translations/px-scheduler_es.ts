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
</context>
<context>
    <name>CaptureControllerWrapper</name>
    <message>
        <source>Could not start recording because there is not enough disk space. Free more disk space and try again. Or set a different disk drive for storing output videos in %1File Preferences%2. </source>
        <translation>No se pudo iniciar la grabación porque no hay suficiente espacio en disco. Libere espacio e inténtelo de nuevo, o elija otra unidad para las grabaciones en la %1configuración de archivos%2.</translation>
    </message>
    <message>
        <source>File Preferences</source>
        <translation>Configuración de archivos</translation>
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
</context>
<context>
    <name>CreateRecordTaskWidget</name>
    <message>
        <source>New record:</source>
        <translation>Nueva grabación:</translation>
    </message>
    <message>
        <source>Action on finish:</source>
        <translation>&amp;Acción al finalizar:</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>&amp;Nombre de archivo:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>&amp;Fecha:</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>dd/MM/yyyy</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>&amp;Hora:</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>&amp;Duración:</translation>
    </message>
    <message>
        <source>Capture:</source>
        <translation>Capturar:</translation>
    </message>
    <message>
        <source>Selected area</source>
        <translation>Área seleccionada</translation>
    </message>
    <message>
        <source>Selected area tooltip</source>
        <translation>Graba el área elegida en los ajustes; si no se ha elegido ninguna, toda la primera pantalla.
Esta versión todavía no graba.</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Need select task name</source>
        <translation>Escriba un nombre para la tarea.</translation>
    </message>
    <message>
        <source>Task with this title already exist</source>
        <translation>Ya existe una tarea con este nombre.</translation>
    </message>
    <message>
        <source>Curent capture time intersect with other capture time in the list</source>
        <translation>El horario de esta grabación coincide con el de otra grabación de la lista.</translation>
    </message>
</context>
<context>
    <name>PowerAction</name>
    <message>
        <source>Do nothing</source>
        <translation>No hacer nada</translation>
    </message>
    <message>
        <source>Quit the application</source>
        <translation>Salir de la aplicación</translation>
    </message>
    <message>
        <source>Sleep</source>
        <translation>Suspender</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>Hibernar</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Reiniciar</translation>
    </message>
    <message>
        <source>Shut down</source>
        <translation>Apagar</translation>
    </message>
</context>
<context>
    <name>RecordSchedulerWidget</name>
    <message>
        <source>All tasks will be permanently deleted from the recording schedule. Are you sure you want to continue?</source>
        <translation>Todas las tareas se eliminarán definitivamente de la programación de grabaciones. ¿Seguro que desea continuar?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>The task hasn&apos;t been saved. Would you like to add this task to the recording schedule?</source>
        <translation>La tarea no se ha guardado. ¿Desea añadirla a la programación de grabaciones?</translation>
    </message>
    <message>
        <source>Don&apos;t Add</source>
        <translation>No añadir</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Do not schedule capture</source>
        <translation>No &amp;programar la grabación</translation>
    </message>
    <message>
        <source>Stop capture after</source>
        <translation>D&amp;etener la grabación tras</translation>
    </message>
    <message>
        <source>Record on schedule</source>
        <translation>&amp;Grabar según la programación</translation>
    </message>
    <message>
        <source>Add record event</source>
        <translation>Añadir grabación</translation>
    </message>
    <message>
        <source>Capture duration in limited capture:</source>
        <translation>&amp;Duración de la grabación:</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>When capture ends:</source>
        <translation>Al &amp;terminar la grabación:</translation>
    </message>
</context>
<context>
    <name>ScheduleRecordTableWidget</name>
    <message>
        <source>Task </source>
        <translation>Tarea </translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
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
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>The task will be permanently deleted from the recording schedule. Are you sure you want to delete the task?</source>
        <translation>La tarea se eliminará definitivamente de la programación de grabaciones. ¿Seguro que desea eliminarla?</translation>
    </message>
    <message>
        <source>Always delete</source>
        <translation>Eliminar siempre</translation>
    </message>
</context>
<context>
    <name>SettingsStore</name>
    <message>
        <source>The settings file %1 is not a file.</source>
        <translation>El archivo de configuración %1 no es un archivo.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder is missing and cannot be created either.</source>
        <translation>No se puede crear el archivo de configuración %1: su carpeta no existe y tampoco se puede crear.</translation>
    </message>
    <message>
        <source>The settings file %1 is in use by another process.</source>
        <translation>Otro proceso está usando el archivo de configuración %1.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder cannot be written to.</source>
        <translation>No se puede crear el archivo de configuración %1: no se puede escribir en su carpeta.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2</source>
        <translation>No se puede leer el archivo de configuración %1: %2</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>El archivo de configuración %1 está dañado y no se puede conservar con otro nombre: %2</translation>
    </message>
    <message>
        <source>The settings file could not be understood, so the defaults are in use. What it held is kept in %1.</source>
        <translation>No se pudo interpretar el archivo de configuración, por lo que se usan los valores predeterminados. Su contenido se conserva en %1.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. Tasks left out: %2. What the file held is kept in %1.</source>
        <translation>No se pudo usar parte de la configuración. Tareas omitidas: %2. El contenido del archivo se conserva en %1.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. What the file held is kept in %1.</source>
        <translation>No se pudo usar parte de la configuración. El contenido del archivo se conserva en %1.</translation>
    </message>
    <message>
        <source>Another program has changed the settings file. Its version is kept in %1; the settings shown here stay in use.</source>
        <translation>Otro programa ha modificado el archivo de configuración. Su versión se conserva en %1; la configuración que se muestra aquí sigue en uso.</translation>
    </message>
    <message>
        <source>Only a part of the file could be read</source>
        <translation>Solo se pudo leer una parte del archivo</translation>
    </message>
    <message>
        <source>%2: your changes are not saved in %1</source>
        <translation>%2: sus cambios no se han guardado en %1</translation>
    </message>
    <message>
        <source>The file is in use by another process</source>
        <translation>Otro proceso está usando el archivo</translation>
    </message>
    <message>
        <source>The folder cannot be written to</source>
        <translation>No se puede escribir en la carpeta</translation>
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
        <source>Ready to record</source>
        <translation>Listo para grabar</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;Iniciar grabación</translation>
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
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>Programación</translation>
    </message>
    <message>
        <source>Choose when a recording stops or starts by itself. Your choice is kept; this version does not record yet.</source>
        <translation>Elija cuándo se detiene o se inicia una grabación automáticamente. Su elección se guarda; esta versión aún no graba.</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>Programación de grabaciones</translation>
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
</TS>
