<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>CaptureControllerWrapper</name>
    <message>
        <source>Could not start recording because there is not enough disk space. Free more disk space and try again. Or set a different disk drive for storing output videos in %1File Preferences%2. </source>
        <translation>Não foi possível iniciar a gravação porque não há espaço suficiente em disco. Libere espaço e tente novamente ou escolha outra unidade para as gravações nas %1configurações de arquivos%2.</translation>
    </message>
    <message>
        <source>File Preferences</source>
        <translation>Configurações de arquivos</translation>
    </message>
</context>
<context>
    <name>CreateRecordTaskWidget</name>
    <message>
        <source>New record:</source>
        <translation>Nova gravação:</translation>
    </message>
    <message>
        <source>Action on finish:</source>
        <translation>&amp;Ação ao terminar:</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Criar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>&amp;Nome do arquivo:</translation>
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
        <translation>&amp;Hora:</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>D&amp;uração:</translation>
    </message>
    <message>
        <source>Capture:</source>
        <translation>Capturar:</translation>
    </message>
    <message>
        <source>Selected area</source>
        <translation>Área selecionada</translation>
    </message>
    <message>
        <source>Selected area tooltip</source>
        <translation>Grava a área escolhida nas configurações; se nenhuma foi escolhida, a primeira tela inteira.</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Tela inteira</translation>
    </message>
    <message>
        <source>Need select task name</source>
        <translation>Digite um nome para a tarefa.</translation>
    </message>
    <message>
        <source>Task with this title already exist</source>
        <translation>Já existe uma tarefa com este nome.</translation>
    </message>
    <message>
        <source>Curent capture time intersect with other capture time in the list</source>
        <translation>O horário desta gravação coincide com o de outra gravação da lista.</translation>
    </message>
</context>
<context>
    <name>PowerAction</name>
    <message>
        <source>Do nothing</source>
        <translation>Não fazer nada</translation>
    </message>
    <message>
        <source>Quit the application</source>
        <translation>Sair do aplicativo</translation>
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
        <translation>Desligar</translation>
    </message>
</context>
<context>
    <name>RecordSchedulerWidget</name>
    <message>
        <source>All tasks will be permanently deleted from the recording schedule. Are you sure you want to continue?</source>
        <translation>Todas as tarefas serão excluídas permanentemente da programação de gravações. Deseja mesmo continuar?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>The task hasn&apos;t been saved. Would you like to add this task to the recording schedule?</source>
        <translation>A tarefa não foi salva. Deseja adicioná-la à programação de gravações?</translation>
    </message>
    <message>
        <source>Don&apos;t Add</source>
        <translation>Não adicionar</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Do not schedule capture</source>
        <translation>Não &amp;programar a gravação</translation>
    </message>
    <message>
        <source>Stop capture after</source>
        <translation>Pa&amp;rar a gravação após</translation>
    </message>
    <message>
        <source>Record on schedule</source>
        <translation>&amp;Gravar conforme a programação</translation>
    </message>
    <message>
        <source>Add record event</source>
        <translation>Adicionar gravação</translation>
    </message>
    <message>
        <source>Capture duration in limited capture:</source>
        <translation>&amp;Duração da gravação:</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>When capture ends:</source>
        <translation>&amp;Quando a gravação terminar:</translation>
    </message>
</context>
<context>
    <name>ScheduleRecordTableWidget</name>
    <message>
        <source>Task </source>
        <translation>Tarefa </translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duração</translation>
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
        <translation>Excluir</translation>
    </message>
    <message>
        <source>The task will be permanently deleted from the recording schedule. Are you sure you want to delete the task?</source>
        <translation>A tarefa será excluída permanentemente da programação de gravações. Deseja mesmo excluí-la?</translation>
    </message>
    <message>
        <source>Always delete</source>
        <translation>Excluir sempre</translation>
    </message>
</context>
<context>
    <name>SettingsStore</name>
    <message>
        <source>The settings file %1 is not a file.</source>
        <translation>O arquivo de configurações %1 não é um arquivo.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder is missing and cannot be created either.</source>
        <translation>Não é possível criar o arquivo de configurações %1: a pasta não existe e também não pode ser criada.</translation>
    </message>
    <message>
        <source>The settings file %1 is in use by another process.</source>
        <translation>O arquivo de configurações %1 está sendo usado por outro processo.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder cannot be written to.</source>
        <translation>Não é possível criar o arquivo de configurações %1: não é possível gravar na pasta.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2</source>
        <translation>Não é possível ler o arquivo de configurações %1: %2</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>O arquivo de configurações %1 está danificado e não pode ser mantido com outro nome: %2</translation>
    </message>
    <message>
        <source>The settings file could not be understood, so the defaults are in use. What it held is kept in %1.</source>
        <translation>Não foi possível interpretar o arquivo de configurações; por isso, os valores padrão estão em uso. O conteúdo dele foi mantido em %1.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. Tasks left out: %2. What the file held is kept in %1.</source>
        <translation>Não foi possível usar algumas das configurações. Tarefas omitidas: %2. O conteúdo do arquivo foi mantido em %1.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. What the file held is kept in %1.</source>
        <translation>Não foi possível usar algumas das configurações. O conteúdo do arquivo foi mantido em %1.</translation>
    </message>
    <message>
        <source>Another program has changed the settings file. Its version is kept in %1; the settings shown here stay in use.</source>
        <translation>Outro programa alterou o arquivo de configurações. A versão dele foi mantida em %1; as configurações mostradas aqui continuam em uso.</translation>
    </message>
    <message>
        <source>Only a part of the file could be read</source>
        <translation>Só foi possível ler uma parte do arquivo</translation>
    </message>
    <message>
        <source>%2: your changes are not saved in %1</source>
        <translation>%2: suas alterações não foram salvas em %1</translation>
    </message>
    <message>
        <source>The file is in use by another process</source>
        <translation>O arquivo está em uso por outro processo</translation>
    </message>
    <message>
        <source>The folder cannot be written to</source>
        <translation>Não é possível gravar na pasta</translation>
    </message>
</context>
</TS>
