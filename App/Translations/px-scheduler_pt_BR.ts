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
    <message>
        <source>the program does not run on these settings</source>
        <translation>o programa não está em execução com estas configurações</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>Cannot delete %1</source>
        <translation>Não é possível excluir: %1</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>Não é possível gravar: %1</translation>
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
    <message>
        <source>Start recording, in the program that runs already if there is one.</source>
        <translation>Iniciar a gravação, no programa que já está em execução, se houver.</translation>
    </message>
    <message>
        <source>Stop the recording of the program that runs already.</source>
        <translation>Parar a gravação do programa que já está em execução.</translation>
    </message>
    <message>
        <source>Pause the recording of the program that runs already, or go on with it.</source>
        <translation>Pausar a gravação do programa que já está em execução, ou retomá-la.</translation>
    </message>
    <message>
        <source>End the program that runs already, without a question.</source>
        <translation>Encerrar o programa que já está em execução, sem perguntar.</translation>
    </message>
    <message>
        <source>Start without a window.</source>
        <translation>Iniciar sem janela.</translation>
    </message>
    <message>
        <source>options --%1 and --%2 cannot be used together</source>
        <translation>as opções --%1 e --%2 não podem ser usadas juntas</translation>
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
        <translation>Próxima: %1, assim que possível</translation>
    </message>
    <message>
        <source>Next: %1 on %2</source>
        <translation>Próxima: %1 em %2</translation>
    </message>
    <message>
        <source>Next: %1 in %2</source>
        <translation>Próxima: %1 em %2</translation>
    </message>
    <message>
        <source>The recording starts</source>
        <translation>A gravação está começando</translation>
    </message>
    <message>
        <source>%1 is about to start</source>
        <translation>%1 está prestes a começar</translation>
    </message>
    <message>
        <source>%1 starts in %2</source>
        <translation>%1 começa em %2</translation>
    </message>
    <message>
        <source>%1 starts when this recording has ended</source>
        <translation>%1 começa quando esta gravação terminar</translation>
    </message>
    <message>
        <source>This recording will end for %1</source>
        <translation>Esta gravação vai terminar para gravar %1</translation>
    </message>
    <message>
        <source>Ends in %1 for %2</source>
        <translation>Termina em %1 para gravar %2</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Gravando</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Em pausa: %1</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>Gravando: %1</translation>
    </message>
    <message>
        <source>%1 is being saved</source>
        <translation>%1 está sendo salva</translation>
    </message>
</context>
<context>
    <name>NoticeText</name>
    <message>
        <source>%1 has been recorded</source>
        <translation>%1 foi gravada</translation>
    </message>
    <message>
        <source>%1 has been stopped</source>
        <translation>%1 foi interrompida</translation>
    </message>
    <message>
        <source>%1 has been recorded in part</source>
        <translation>%1 foi gravada em parte</translation>
    </message>
    <message>
        <source>%1 has not been recorded</source>
        <translation>%1 não foi gravada</translation>
    </message>
    <message>
        <source>%1 could not be recorded</source>
        <translation>%1 não pôde ser gravada</translation>
    </message>
    <message>
        <source>Reason: %1.</source>
        <translation>Motivo: %1.</translation>
    </message>
    <message>
        <source>The file is %1.</source>
        <translation>O arquivo é %1.</translation>
    </message>
    <message>
        <source>The rest is recorded into a new file.</source>
        <translation>O restante é gravado em um novo arquivo.</translation>
    </message>
    <message>
        <source>The computer cannot go to sleep</source>
        <translation>O computador não pode ser suspenso</translation>
    </message>
    <message>
        <source>The computer cannot hibernate</source>
        <translation>O computador não pode hibernar</translation>
    </message>
    <message>
        <source>The computer cannot be restarted</source>
        <translation>O computador não pode ser reiniciado</translation>
    </message>
    <message>
        <source>The computer cannot be shut down</source>
        <translation>O computador não pode ser desligado</translation>
    </message>
    <message>
        <source>The computer does not go to sleep</source>
        <translation>O computador não será suspenso</translation>
    </message>
    <message>
        <source>The computer does not hibernate</source>
        <translation>O computador não vai hibernar</translation>
    </message>
    <message>
        <source>The computer is not restarted</source>
        <translation>O computador não será reiniciado</translation>
    </message>
    <message>
        <source>The computer is not shut down</source>
        <translation>O computador não será desligado</translation>
    </message>
    <message>
        <source>%1 starts at %2.</source>
        <translation>%1 começa às %2.</translation>
    </message>
    <message>
        <source>%1 is about to be recorded</source>
        <translation>%1 está prestes a ser gravada</translation>
    </message>
    <message>
        <source>The recording starts at %1.</source>
        <translation>A gravação começa às %1.</translation>
    </message>
    <message>
        <source>%1 is being recorded</source>
        <translation>%1 está sendo gravada</translation>
    </message>
    <message>
        <source>Your recording ends in a moment</source>
        <translation>Sua gravação termina em instantes</translation>
    </message>
    <message>
        <source>%1 waits for its screen</source>
        <translation>%1 aguarda sua tela</translation>
    </message>
    <message>
        <source>It is recorded as soon as the screen is connected.</source>
        <translation>Será gravada assim que a tela for conectada.</translation>
    </message>
    <message>
        <source>%1 does not start</source>
        <translation>%1 não começa</translation>
    </message>
    <message>
        <source>The disk is full: %1 are free.</source>
        <translation>O disco está cheio: %1 livres.</translation>
    </message>
    <message>
        <source>The recording is finished.</source>
        <translation>A gravação terminou.</translation>
    </message>
    <message>
        <source>There is a problem with %1</source>
        <translation>Há um problema com %1</translation>
    </message>
    <message>
        <source>your recording</source>
        <translation>sua gravação</translation>
    </message>
    <message>
        <source>The disk may be too small for the scheduled tasks</source>
        <translation>O disco pode ser pequeno demais para as tarefas programadas</translation>
    </message>
    <message>
        <source>They are likely to need %1, and %2 can be used.</source>
        <translation>Elas devem precisar de %1, e %2 podem ser usados.</translation>
    </message>
    <message>
        <source>The program runs on</source>
        <translation>O programa continua em execução</translation>
    </message>
    <message>
        <source>Its icon shows the window again. You can change this on the page &quot;General&quot;.</source>
        <translation>O ícone dele mostra a janela novamente. Você pode mudar isso na página “Geral”.</translation>
    </message>
    <message>
        <source>Not everything works on this desktop</source>
        <translation>Nem tudo funciona nesta área de trabalho</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Pular</translation>
    </message>
    <message>
        <source>Keep recording</source>
        <translation>Continuar gravando</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Mostrar na pasta</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Agora</translation>
    </message>
    <message>
        <source>The computer goes to sleep in %1</source>
        <translation>O computador será suspenso em %1</translation>
    </message>
    <message>
        <source>The computer hibernates in %1</source>
        <translation>O computador vai hibernar em %1</translation>
    </message>
    <message>
        <source>The computer restarts in %1</source>
        <translation>O computador será reiniciado em %1</translation>
    </message>
    <message>
        <source>The computer shuts down in %1</source>
        <translation>O computador será desligado em %1</translation>
    </message>
    <message>
        <source>Your recording</source>
        <translation>Sua gravação</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
</context>
<context>
    <name>RecordingTexts</name>
    <message>
        <source>it started late</source>
        <translation>começou atrasada</translation>
    </message>
    <message>
        <source>an earlier part of it broke off</source>
        <translation>uma parte anterior foi interrompida</translation>
    </message>
    <message>
        <source>the recorder broke down</source>
        <translation>o gravador falhou</translation>
    </message>
    <message>
        <source>the program ended unexpectedly</source>
        <translation>o programa terminou de forma inesperada</translation>
    </message>
    <message>
        <source>a task was due</source>
        <translation>era a hora de uma tarefa</translation>
    </message>
    <message>
        <source>the computer was shut down</source>
        <translation>o computador foi desligado</translation>
    </message>
    <message>
        <source>the computer was asleep</source>
        <translation>o computador estava suspenso</translation>
    </message>
    <message>
        <source>the program was not running</source>
        <translation>o programa não estava em execução</translation>
    </message>
    <message>
        <source>the schedule was off</source>
        <translation>a programação estava desativada</translation>
    </message>
    <message>
        <source>the clock was set</source>
        <translation>o relógio foi ajustado</translation>
    </message>
    <message>
        <source>another recording was running</source>
        <translation>outra gravação estava em andamento</translation>
    </message>
    <message>
        <source>the screen was not connected</source>
        <translation>a tela não estava conectada</translation>
    </message>
    <message>
        <source>you skipped it</source>
        <translation>você a pulou</translation>
    </message>
    <message>
        <source>the recorder is not installed</source>
        <translation>o gravador não está instalado</translation>
    </message>
    <message>
        <source>the disk was nearly full</source>
        <translation>o disco estava quase cheio</translation>
    </message>
    <message>
        <source>the disk was full</source>
        <translation>o disco estava cheio</translation>
    </message>
    <message>
        <source>the display was gone</source>
        <translation>a tela deixou de estar disponível</translation>
    </message>
    <message>
        <source>the program was ended</source>
        <translation>o programa foi encerrado</translation>
    </message>
    <message>
        <source>the file existed already</source>
        <translation>o arquivo já existia</translation>
    </message>
    <message>
        <source>the folder did not exist</source>
        <translation>a pasta não existia</translation>
    </message>
    <message>
        <source>the folder could not be written to</source>
        <translation>não era possível gravar na pasta</translation>
    </message>
    <message>
        <source>the desktop did not allow it</source>
        <translation>a área de trabalho não permitiu</translation>
    </message>
    <message>
        <source>no encoder works on this computer</source>
        <translation>nenhum codificador funciona neste computador</translation>
    </message>
    <message>
        <source>nothing was recorded</source>
        <translation>nada foi gravado</translation>
    </message>
    <message>
        <source>the conversion to MP4 failed</source>
        <translation>a conversão para MP4 falhou</translation>
    </message>
    <message>
        <source>the recorder reported an error</source>
        <translation>o gravador informou um erro</translation>
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
        <translation>Interrompida por você</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Perdida</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>Recording now</source>
        <translation>Gravando agora</translation>
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
        <translation>Área da tela</translation>
    </message>
    <message>
        <source>Draw the area with the mouse, or move it with the arrow keys and resize it with Shift and the arrow keys. Enter takes it, Escape cancels.</source>
        <translation>Desenhe a área com o mouse, ou mova-a com as teclas de seta e redimensione-a com Shift e as teclas de seta. Enter confirma, Esc cancela.</translation>
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
    <name>Zentor::Desktop::DesktopNotices</name>
    <message>
        <source>Show the window</source>
        <translation>Mostrar a janela</translation>
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
    <message>
        <source>Start &amp;with the desktop</source>
        <translation>Iniciar ao &amp;entrar na sessão</translation>
    </message>
    <message>
        <source>&amp;Keep running when the window is closed</source>
        <translation>&amp;Manter em execução ao fechar a janela</translation>
    </message>
    <message>
        <source>While tasks are pending or a recording runs, the program stays in the tray. Where there is none, its window is minimized.</source>
        <translation>Enquanto houver tarefas pendentes ou uma gravação em andamento, o programa permanece na bandeja do sistema. Onde não houver uma, sua janela é minimizada.</translation>
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
        <source>The recording that is running will be stopped.</source>
        <translation>A gravação em andamento será interrompida.</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) are still to come. They will not be recorded when the program is not running.</source>
        <translation>
            <numerusform>Ainda falta %n tarefa. Ela não será gravada se o programa não estiver em execução.</numerusform>
            <numerusform>Ainda faltam %n tarefas. Elas não serão gravadas se o programa não estiver em execução.</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
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
    <name>Zentor::Desktop::PanelAreaTip</name>
    <message>
        <source>No area has been selected yet: all of screen 1 (%1) is recorded. You can select an area on the page &quot;Recording&quot;.</source>
        <translation>Nenhuma área foi selecionada ainda: a tela 1 inteira (%1) é gravada. Você pode selecionar uma área na página “Gravação”.</translation>
    </message>
    <message>
        <source>Records %1, the area that is selected on the page &quot;Recording&quot;.</source>
        <translation>Grava %1, a área selecionada na página “Gravação”.</translation>
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
    <name>Zentor::Desktop::PictureCard</name>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>&amp;Quadros por segundo:</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>Q&amp;ualidade:</translation>
    </message>
    <message>
        <source>Fil&amp;e format:</source>
        <translation>&amp;Formato do arquivo:</translation>
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
        <translation>Gravar o &amp;ponteiro do mouse</translation>
    </message>
    <message>
        <source>Small: about %1 an hour</source>
        <translation>Baixa: cerca de %1 por hora</translation>
    </message>
    <message>
        <source>Normal: about %1 an hour</source>
        <translation>Normal: cerca de %1 por hora</translation>
    </message>
    <message>
        <source>High: about %1 an hour</source>
        <translation>Alta: cerca de %1 por hora</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingControl</name>
    <message>
        <source>A task is about to start.</source>
        <translation>Uma tarefa está prestes a começar.</translation>
    </message>
    <message>
        <source>The desktop shows no notifications. The page &quot;Recordings&quot; tells what was recorded, and what was not.</source>
        <translation>A área de trabalho não mostra notificações. A página “Gravações” informa o que foi gravado e o que não foi.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingFooter</name>
    <message>
        <source>Recording</source>
        <translation>Gravando</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>Gravado</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fim</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>Tamanho do arquivo</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Espaço livre</translation>
    </message>
    <message>
        <source>Dropped frames</source>
        <translation>Quadros perdidos</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;Iniciar gravação</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>F&amp;inalizar</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>Pu&amp;lar</translation>
    </message>
    <message>
        <source>Skip this task</source>
        <translation>Pular esta tarefa</translation>
    </message>
    <message>
        <source>&amp;Keep recording</source>
        <translation>&amp;Continuar gravando</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>Ag&amp;ora</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>até %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 livres</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s) dropped</source>
        <translation>
            <numerusform>%n quadro perdido</numerusform>
            <numerusform>%n quadros perdidos</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>Ret&amp;omar</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>Pau&amp;sar</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingPage</name>
    <message>
        <source>Recording</source>
        <translation>Gravação</translation>
    </message>
    <message>
        <source>Choose what is recorded, and how.</source>
        <translation>Escolha o que é gravado e como.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsModel</name>
    <message>
        <source>the file is gone</source>
        <translation>o arquivo não existe mais</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsPage</name>
    <message>
        <source>Recordings</source>
        <translation>Gravações</translation>
    </message>
    <message>
        <source>What was recorded, and what was not.</source>
        <translation>O que foi gravado e o que não foi.</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. Start a recording with the button below, or plan one on the page Schedule; it is listed here then.</source>
        <translation>Nada foi gravado ainda. Inicie uma gravação com o botão abaixo ou programe uma na página “Programação”; depois ela aparecerá aqui.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>Mostrar na &amp;pasta</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparar</translation>
    </message>
    <message>
        <source>Adds what a crash has kept from the end of the file, so that players can seek in it.</source>
        <translation>Adiciona o que uma falha impediu de gravar no fim do arquivo, para que os reprodutores possam avançar e retroceder nele.</translation>
    </message>
    <message>
        <source>Move to &amp;trash</source>
        <translation>&amp;Mover para a lixeira</translation>
    </message>
    <message>
        <source>Remove from &amp;list</source>
        <translation>Remover &amp;da lista</translation>
    </message>
    <message>
        <source>There is no file of this recording.</source>
        <translation>Não há arquivo desta gravação.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>Não é possível abrir: %1</translation>
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
        <translation>Não foi possível reparar: %1</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; will be moved to the trash. Are you sure?</source>
        <translation>A gravação “%1” será movida para a lixeira. Deseja mesmo continuar?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; will be removed from the list. Are you sure?</source>
        <translation>“%1” será removida da lista. Deseja mesmo continuar?</translation>
    </message>
    <message>
        <source>Move to trash</source>
        <translation>Mover para a lixeira</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash</source>
        <translation>Não foi possível mover para a lixeira: %1</translation>
    </message>
    <message>
        <source>Removed from the list: %1</source>
        <translation>Removida da lista: %1</translation>
    </message>
    <message>
        <source>Moved to the trash: %1</source>
        <translation>Movida para a lixeira: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>Programação</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>Programação de gravações</translation>
    </message>
    <message>
        <source>Choose when a recording stops by itself, and which recordings start by themselves.</source>
        <translation>Escolha quando uma gravação para sozinha e quais gravações começam sozinhas.</translation>
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
<context>
    <name>Zentor::Desktop::SoundCard</name>
    <message>
        <source>Record the sound of:</source>
        <translation>Gravar o som de:</translation>
    </message>
    <message>
        <source>Sound devices</source>
        <translation>Dispositivos de som</translation>
    </message>
    <message>
        <source>All sound in one trac&amp;k</source>
        <translation>Todo o som em uma fai&amp;xa</translation>
    </message>
    <message>
        <source>Otherwise each device has a track of its own, for editing. Most players play only the first.</source>
        <translation>Caso contrário, cada dispositivo tem sua própria faixa, para edição. A maioria dos reprodutores só reproduz a primeira.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceList</name>
    <message>
        <source>Looking for sound devices...</source>
        <translation>Procurando dispositivos de som…</translation>
    </message>
    <message>
        <source>The sound devices of this computer cannot be listed.</source>
        <translation>Não é possível listar os dispositivos de som deste computador.</translation>
    </message>
    <message>
        <source>There are no sound devices on this computer.</source>
        <translation>Não há dispositivos de som neste computador.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceRow</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (não conectado)</translation>
    </message>
    <message>
        <source>Level of %1</source>
        <translation>Nível de %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SourceCard</name>
    <message>
        <source>Record a s&amp;creen</source>
        <translation>Gra&amp;var uma tela</translation>
    </message>
    <message>
        <source>Screen that is recorded</source>
        <translation>Tela que é gravada</translation>
    </message>
    <message>
        <source>Record the selected &amp;area</source>
        <translation>G&amp;ravar a área selecionada</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>&amp;Esquerda:</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>&amp;Topo:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>Lar&amp;gura:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Altura:</translation>
    </message>
    <message>
        <source>Left edge of the area in pixels</source>
        <translation>Borda esquerda da área em pixels</translation>
    </message>
    <message>
        <source>Top edge of the area in pixels</source>
        <translation>Borda superior da área em pixels</translation>
    </message>
    <message>
        <source>Width of the area in pixels</source>
        <translation>Largura da área em pixels</translation>
    </message>
    <message>
        <source>Height of the area in pixels</source>
        <translation>Altura da área em pixels</translation>
    </message>
    <message>
        <source>Choose o&amp;n the screen...</source>
        <translation>Escolher &amp;na tela…</translation>
    </message>
    <message>
        <source>Show &amp;outline</source>
        <translation>&amp;Mostrar contorno</translation>
    </message>
    <message>
        <source>Screen %1, %2</source>
        <translation>Tela %1, %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>Screen %1 (not connected)</source>
        <translation>Tela %1 (não conectada)</translation>
    </message>
    <message>
        <source>No area has been selected yet: all of screen 1 is recorded instead, also by tasks with &quot;Selected area&quot;.</source>
        <translation>Nenhuma área foi selecionada ainda: a tela 1 inteira é gravada no lugar, também nas tarefas com “Área selecionada”.</translation>
    </message>
    <message>
        <source>Tasks with &quot;Selected area&quot; record this area, too.</source>
        <translation>As tarefas com “Área selecionada” também gravam esta área.</translation>
    </message>
    <message>
        <source>The screen that is to be recorded is not connected.</source>
        <translation>A tela a ser gravada não está conectada.</translation>
    </message>
    <message>
        <source>The selected area is not on any screen.</source>
        <translation>A área selecionada não está em nenhuma tela.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::TrayIcon</name>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;Iniciar gravação</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Finalizar</translation>
    </message>
    <message>
        <source>Show &amp;window</source>
        <translation>Mostrar a &amp;janela</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>Sem gravação</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Gravando</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Retomar</translation>
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
        <translation>Veja e ouça como fica uma gravação com estas configurações.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Try fi&amp;ve seconds</source>
        <translation>Testar cinco segun&amp;dos</translation>
    </message>
    <message>
        <source>Trial recording</source>
        <translation>Gravação de teste</translation>
    </message>
    <message>
        <source>The trial recording was cancelled.</source>
        <translation>A gravação de teste foi cancelada.</translation>
    </message>
    <message>
        <source>The trial recording was made, but there is no program that opens it: %1</source>
        <translation>A gravação de teste foi feita, mas não há programa que a abra: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened. The recorder says: %1</source>
        <translation>A gravação de teste foi feita e aberta. O gravador informa: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened.</source>
        <translation>A gravação de teste foi feita e aberta.</translation>
    </message>
    <message>
        <source>The recorder px-recorder cannot be started. Is it installed completely?</source>
        <translation>Não é possível iniciar o gravador px-recorder. Ele está instalado por completo?</translation>
    </message>
    <message>
        <source>Nothing could be recorded. The recorder says: %1</source>
        <translation>Não foi possível gravar nada. O gravador informa: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::Inhibitors</name>
    <message>
        <source>The computer cannot be kept from going to sleep while it records.</source>
        <translation>Não é possível impedir que o computador seja suspenso enquanto grava.</translation>
    </message>
    <message>
        <source>The computer cannot be kept from being shut down before the file is closed.</source>
        <translation>Não é possível impedir que o computador seja desligado antes que o arquivo seja fechado.</translation>
    </message>
    <message>
        <source>The screen cannot be kept from going dark while it is recorded.</source>
        <translation>Não é possível impedir que a tela se apague enquanto é gravada.</translation>
    </message>
    <message>
        <source>A recording is running.</source>
        <translation>Uma gravação está em andamento.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecorderProcess</name>
    <message>
        <source>%1 is of another version</source>
        <translation>%1 é de outra versão</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>Não é possível iniciar %1: %2</translation>
    </message>
    <message>
        <source>The recorder crashed (signal %1).</source>
        <translation>O gravador falhou (sinal %1).</translation>
    </message>
    <message>
        <source>The recorder ended unexpectedly (exit status %1).</source>
        <translation>O gravador terminou de forma inesperada (código de saída %1).</translation>
    </message>
    <message>
        <source>The recorder did not start in time.</source>
        <translation>O gravador não iniciou a tempo.</translation>
    </message>
    <message>
        <source>The recorder stopped responding.</source>
        <translation>O gravador parou de responder.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecordingsList</name>
    <message>
        <source>The list of recordings %1 cannot be read: %2</source>
        <translation>Não é possível ler a lista de gravações %1: %2</translation>
    </message>
    <message>
        <source>The list of recordings %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>A lista de gravações %1 está danificada e não pode ser mantida com outro nome: %2</translation>
    </message>
    <message>
        <source>Some entries of the list of recordings could not be used. What the file held is kept in %1.</source>
        <translation>Não foi possível usar algumas entradas da lista de gravações. O conteúdo do arquivo foi mantido em %1.</translation>
    </message>
    <message>
        <source>The list of recordings could not be understood, so it begins anew. What it held is kept in %1.</source>
        <translation>Não foi possível interpretar a lista de gravações; por isso, ela recomeça do zero. O conteúdo dela foi mantido em %1.</translation>
    </message>
    <message>
        <source>%1: the list of recordings is not saved in %2</source>
        <translation>%1: a lista de gravações não foi salva em %2</translation>
    </message>
</context>
</TS>
