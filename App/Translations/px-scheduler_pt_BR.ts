<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Application</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>cannot copy the settings file %1: %2</source>
        <translation>não foi possível copiar o arquivo de configurações %1: %2</translation>
    </message>
</context>
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
    <name>CommandLine</name>
    <message>
        <source>Keep the settings in &lt;file&gt; instead of the platform&apos;s configuration folder.</source>
        <translation>Guardar as configurações em &lt;file&gt; em vez da pasta de configuração do sistema.</translation>
    </message>
    <message>
        <source>Use &lt;language&gt; in this run, for example de or pt_BR.</source>
        <translation>Usar &lt;language&gt; nesta execução, por exemplo de ou pt_BR.</translation>
    </message>
    <message>
        <source>Use the theme light or dark in this run.</source>
        <translation>Usar o tema light ou dark nesta execução.</translation>
    </message>
    <message>
        <source>Walk through the window on a copy of the settings (of a sample without --settings), write a picture of each state into &lt;folder&gt;, and end.</source>
        <translation>Percorrer a janela com uma cópia das configurações (de um exemplo sem --settings), gravar uma imagem de cada estado em &lt;folder&gt; e terminar.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Mostrar esta ajuda.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostrar a versão.</translation>
    </message>
    <message>
        <source>%1: %2 (try --help)</source>
        <translation>%1: %2 (tente --help)</translation>
    </message>
    <message>
        <source>option --%1 needs a value</source>
        <translation>a opção --%1 precisa de um valor</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>argumento inesperado “%1”</translation>
    </message>
    <message>
        <source>unknown theme &apos;%1&apos;; the themes are light and dark</source>
        <translation>tema desconhecido “%1”; os temas são light e dark</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;; the languages are %2</source>
        <translation>idioma desconhecido “%1”; os idiomas são %2</translation>
    </message>
    <message>
        <source>Choose how screen recordings are timed.</source>
        <translation>Escolha quando as gravações de tela começam e terminam.</translation>
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
        <translation>Grava a área escolhida nas configurações; se nenhuma foi escolhida, a primeira tela inteira.
Esta versão ainda não grava.</translation>
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
<context>
    <name>Zentor::Desktop::CalendarLook</name>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::FilesPage</name>
    <message>
        <source>&amp;Folder for recordings:</source>
        <translation>&amp;Pasta das gravações:</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>Pasta das gravações</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>P&amp;rocurar…</translation>
    </message>
    <message>
        <source>Browse for the folder for recordings</source>
        <translation>Procurar a pasta das gravações</translation>
    </message>
    <message>
        <source>Enter the full path of a folder.</source>
        <translation>Digite o caminho completo de uma pasta.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Isto é um arquivo, não uma pasta.</translation>
    </message>
    <message>
        <source>You are not allowed to write into this folder.</source>
        <translation>Você não tem permissão para gravar nesta pasta.</translation>
    </message>
    <message>
        <source>The free space of this folder is unknown.</source>
        <translation>O espaço livre desta pasta é desconhecido.</translation>
    </message>
    <message>
        <source>Free space: %1</source>
        <translation>Espaço livre: %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>Choose where recordings are kept.</source>
        <translation>Escolha onde as gravações são guardadas.</translation>
    </message>
    <message>
        <source>This folder cannot be created.</source>
        <translation>Não é possível criar esta pasta.</translation>
    </message>
    <message>
        <source>This folder does not exist yet. It will be created with the first recording.</source>
        <translation>Esta pasta ainda não existe. Ela será criada com a primeira gravação.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::GeneralPage</name>
    <message>
        <source>In this run: %1 (chosen at the start)</source>
        <translation>Nesta execução: %1 (escolhido ao iniciar)</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>I&amp;dioma:</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <translation>Como o sistema (%1)</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;Tema:</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Como o sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Escuro</translation>
    </message>
    <message>
        <source>&amp;Ask all questions again</source>
        <translation>&amp;Voltar a perguntar tudo</translation>
    </message>
    <message>
        <source>Open settings &amp;folder</source>
        <translation>Abrir a &amp;pasta das configurações</translation>
    </message>
    <message>
        <source>&amp;Open log</source>
        <translation>Abrir o &amp;registro</translation>
    </message>
    <message>
        <source>There is no log of this run.</source>
        <translation>Não há registro desta execução.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>Não é possível abrir: %1</translation>
    </message>
    <message>
        <source>Some questions are no longer asked.</source>
        <translation>Algumas perguntas não são mais feitas, como você escolheu.</translation>
    </message>
    <message>
        <source>Every question is asked, for example before a task is deleted.</source>
        <translation>Todas as perguntas são feitas, por exemplo antes de excluir uma tarefa.</translation>
    </message>
    <message>
        <source>All questions will be asked again</source>
        <translation>Todas as perguntas voltam a ser feitas</translation>
    </message>
    <message>
        <source>When something goes wrong, your settings and the log of this run help to find out why.</source>
        <translation>Se algo der errado, suas configurações e o registro desta execução ajudam a descobrir o motivo.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Choose language and theme.</source>
        <translation>Escolha o idioma e a aparência do aplicativo.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::MainWindow</name>
    <message>
        <source>Recording Scheduler</source>
        <translation>Agendador de gravações</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>Páginas de configurações</translation>
    </message>
    <message>
        <source>Your changes are saved again.</source>
        <translation>As alterações voltaram a ser salvas.</translation>
    </message>
    <message>
        <source>Your changes could not be saved. They will be lost if you close the window now.</source>
        <translation>Não foi possível salvar as alterações. Elas serão perdidas se você fechar a janela agora.</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>Fechar mesmo assim</translation>
    </message>
    <message>
        <source>Ready to record</source>
        <translation>Pronto para gravar</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;Iniciar gravação</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Close notice</source>
        <translation>Fechar aviso</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelAnnouncer</name>
    <message>
        <source>Task added: %1</source>
        <translation>Tarefa adicionada: %1</translation>
    </message>
    <message>
        <source>All tasks deleted</source>
        <translation>Todas as tarefas excluídas</translation>
    </message>
    <message>
        <source>Task deleted: %1</source>
        <translation>Tarefa excluída: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelNameGuard</name>
    <message>
        <source>A name cannot contain line breaks or other control characters.</source>
        <translation>Um nome não pode conter quebras de linha nem outros caracteres de controle.</translation>
    </message>
    <message>
        <source>A name cannot contain: %1</source>
        <translation>Um nome não pode conter: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelTaskDetails</name>
    <message>
        <source>This task is over.</source>
        <translation>Esta tarefa já passou.</translation>
    </message>
    <message>
        <source>Afterwards: %1</source>
        <translation>Depois: %1</translation>
    </message>
    <message>
        <source>Ends at %1</source>
        <translation>Termina às %1</translation>
    </message>
    <message>
        <source>Ends on the next day at %1</source>
        <translation>Termina no dia seguinte às %1</translation>
    </message>
    <message>
        <source>Records screen %1, which is not connected</source>
        <translation>Grava a tela %1, que não está conectada</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>Grava: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>Programação</translation>
    </message>
    <message>
        <source>Choose when a recording stops or starts by itself. Your choice is kept; this version does not record yet.</source>
        <translation>Escolha quando uma gravação para ou começa automaticamente. Sua escolha é guardada; esta versão ainda não grava.</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>Programação de gravações</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::ScreenshotTour</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>não é possível criar a pasta %1</translation>
    </message>
    <message>
        <source>cannot reach: %1</source>
        <translation>não é possível alcançar: %1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>não é possível gravar %1</translation>
    </message>
</context>
</TS>
