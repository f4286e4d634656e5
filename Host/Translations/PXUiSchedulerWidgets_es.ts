<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
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
        <translation>Graba el área elegida en los ajustes; si no se ha elegido ninguna, toda la primera pantalla.</translation>
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
</TS>
