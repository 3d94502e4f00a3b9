<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="zh_CN">
<context>
    <name>ColorSlider</name>
    <message>
        <source>色相</source>
        <translation>Matiz</translation>
    </message>
</context>
<context>
    <name>CommandRows</name>
    <message>
        <source>命令,数据长度,Byte0
命令号(Hex),Byte1
Effect,Byte2
Speed,Byte3
Brightness,Byte4
Option,Byte5
R,Byte6
G,Byte7
B</source>
        <translation>Comando,Tamanho dos dados,Byte0
N.º do comando (Hex),Byte1
Effect,Byte2
Speed,Byte3
Brightness,Byte4
Option,Byte5
R,Byte6
G,Byte7
B</translation>
    </message>
</context>
<context>
    <name>CustomTabBar</name>
    <message>
        <source>选项卡</source>
        <translation>Separadores</translation>
    </message>
</context>
<context>
    <name>CustumSlider</name>
    <message>
        <source>滑块</source>
        <translation>Controlo deslizante</translation>
    </message>
</context>
<context>
    <name>DeadZonePage</name>
    <message>
        <source>死区设置</source>
        <translation>Zonas mortas</translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation>Zonas mortas da tecla</translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation>A distância entre o fundo e o início da subida chama-se «zona morta». Reduz as falhas do switch magnético causadas por interferências. Ajuste-a como preferir; dentro dela nada é acionado.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation>Zona morta superior</translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation>Zona morta inferior</translation>
    </message>
    <message>
        <source>按键顶部不触发的距离，可防误触</source>
        <translation>Curso no topo que não faz nada, contra toques acidentais</translation>
    </message>
    <message>
        <source>按键底部不响应的距离，可防抖动</source>
        <translation>Curso no fundo que não faz nada, contra oscilações com a tecla premida</translation>
    </message>
</context>
<context>
    <name>DemoBoard</name>
    <message>
        <source>没有插入键盘</source>
        <translation>Nenhum teclado ligado</translation>
    </message>
    <message>
        <source>虚拟键盘的灯光</source>
        <translation>Iluminação do teclado virtual</translation>
    </message>
    <message>
        <source>虚拟键盘</source>
        <translation>Teclado virtual</translation>
    </message>
    <message>
        <source>单击按键即可按下它，部分灯效会作出反应。</source>
        <translation>Clique numa tecla para a premir; alguns efeitos reagem.</translation>
    </message>
    <message>
        <source>灯光已关闭</source>
        <translation>Iluminação desligada</translation>
    </message>
    <message>
        <source>%1 · 亮度 %2% · 速度 %3%</source>
        <translation>%1 · brilho %2% · velocidade %3%</translation>
    </message>
</context>
<context>
    <name>DemoDesk</name>
    <message>
        <source>虚拟设备</source>
        <translation>Dispositivos virtuais</translation>
    </message>
    <message>
        <source>插入或拔出虚拟设备：</source>
        <translation>Ligar ou desligar dispositivos virtuais:</translation>
    </message>
    <message>
        <source>依次按下所有按键</source>
        <translation>Premir todas as teclas, uma após outra</translation>
    </message>
    <message>
        <source>显示键盘的灯光</source>
        <translation>Mostrar a iluminação do teclado</translation>
    </message>
</context>
<context>
    <name>DeviceOptionsPanel</name>
    <message>
        <source>键盘回报率</source>
        <translation>Taxa de polling</translation>
    </message>
    <message>
        <source>2.4G关闭背光</source>
        <translation>Apagar luz em 2.4G</translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation>Apagar luz em Bluetooth</translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation>Suspensão profunda 2.4G</translation>
    </message>
    <message>
        <source>分钟</source>
        <translation>min</translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation>Suspensão profunda Bluetooth</translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation>Nível de debounce</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>键盘每秒向电脑报告的次数，越高延迟越低</source>
        <translation>Quantas vezes por segundo o teclado comunica com o computador; mais alto significa menos latência</translation>
    </message>
    <message>
        <source>不按键多久后关闭背光</source>
        <translation>Tempo sem premir teclas até a retroiluminação se desligar</translation>
    </message>
    <message>
        <source>不按键多久后进入深度睡眠，可省电</source>
        <translation>Tempo sem premir teclas até o teclado entrar em suspensão profunda, que poupa bateria</translation>
    </message>
    <message>
        <source>级别越高越能避免连击，但会增加延迟</source>
        <translation>Um nível mais alto evita melhor os toques duplos, mas aumenta a latência</translation>
    </message>
</context>
<context>
    <name>DeviceTrouble</name>
    <message>
        <source>系统不允许访问此键盘。请将 70-orbehub.rules 复制到 /etc/udev/rules.d，然后重新插拔键盘。</source>
        <translation>O sistema não permite o acesso a este teclado. Copie 70-orbehub.rules para /etc/udev/rules.d e volte a ligar o teclado.</translation>
    </message>
    <message>
        <source>系统不允许访问此键盘。请检查您的用户权限，然后重新插拔键盘。</source>
        <translation>O sistema não permite o acesso a este teclado. Verifique as suas permissões e volte a ligar o teclado.</translation>
    </message>
    <message>
        <source>已断开</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>键盘已断开，重新连接后即可使用。</source>
        <translation>O teclado está desligado. Volte a ligá-lo para o usar.</translation>
    </message>
    <message>
        <source>没有响应</source>
        <translation>Sem resposta</translation>
    </message>
    <message>
        <source>键盘没有响应，可能处于休眠状态，请按任意键唤醒。</source>
        <translation>O teclado não responde. Pode estar em suspensão: prima qualquer tecla para o ativar.</translation>
    </message>
    <message>
        <source>没有访问权限</source>
        <translation>Sem acesso</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>Não abre</translation>
    </message>
    <message>
        <source>无法打开键盘，可能正被其他程序占用。请关闭该程序后重新插拔键盘。</source>
        <translation>Não é possível abrir o teclado. Outro programa pode estar a usá-lo: feche-o e volte a ligar o teclado.</translation>
    </message>
    <message>
        <source>键盘</source>
        <translation>Teclado</translation>
    </message>
</context>
<context>
    <name>DialogColorPicker</name>
    <message>
        <source>取色器</source>
        <translation>Seletor de cores</translation>
    </message>
    <message>
        <source>按住并拖到屏幕上的任意位置取色</source>
        <translation>Segure e arraste para qualquer ponto do ecrã para escolher uma cor</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Concluído</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConnect</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Depuração do dispositivo Orbe Studio</translation>
    </message>
    <message>
        <source>命令目录</source>
        <translation>Catálogo de comandos</translation>
    </message>
</context>
<context>
    <name>DialogFNPicker</name>
    <message>
        <source>组合键</source>
        <translation>Combinação de teclas</translation>
    </message>
    <message>
        <source>基本字符</source>
        <translation>Teclas básicas</translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation>Teclas adicionais</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>播放方式:</source>
        <translation>Modo de reprodução:</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>N.º de repetições</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Premir</translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation>Funções de sistema</translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation>Funções do rato</translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation>Definir função como:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Esquerdo</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Direito</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Central</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>Recuar</translation>
    </message>
    <message>
        <source>左滚</source>
        <translation>Roda para a esquerda</translation>
    </message>
    <message>
        <source>右滚</source>
        <translation>Roda para a direita</translation>
    </message>
    <message>
        <source>上滚</source>
        <translation>Roda para cima</translation>
    </message>
    <message>
        <source>下滚</source>
        <translation>Roda para baixo</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Deslocar para cima</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Deslocar para baixo</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Teclas personalizadas</translation>
    </message>
    <message>
        <source>宏</source>
        <translation>Macro </translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation>Macro não gravada</translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation>Teclas básicas</translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation>Teclas adicionais</translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation>Combinação de teclas:</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>组合键</source>
        <translation>Combinação de teclas</translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>Nome do dispositivo: Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>Versão do firmware do teclado: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Versão do firmware do recetor: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Versão atual: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>Procurar atualização do firmware do teclado</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>Procurar atualização do firmware do recetor</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>Tutoriais</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>Acerca da Orbe</translation>
    </message>
</context>
<context>
    <name>FrameDeviceHolder</name>
    <message>
        <source>首页</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>键盘设置</source>
        <translation>Definições das teclas</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>Switches magnéticos</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>Definições de iluminação</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>Utilizador</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>板载 1</source>
        <translation>Perfil 1</translation>
    </message>
    <message>
        <source>板载 2</source>
        <translation>Perfil 2</translation>
    </message>
    <message>
        <source>板载 3</source>
        <translation>Perfil 3</translation>
    </message>
    <message>
        <source>板载 4</source>
        <translation>Perfil 4</translation>
    </message>
    <message>
        <source>对码</source>
        <translation>Emparelhar</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Repor predefinições</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Calibração</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>Definições de luz</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>Bateria restante</translation>
    </message>
</context>
<context>
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>高级键</source>
        <translation>Avançadas</translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation>Outras</translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation>Camada Fn</translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation>Personalizado / camada Fn</translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation>*Clique primeiro numa tecla acima e escolha na caixa de diálogo uma combinação, macro, função de sistema ou função de rato para a remapear</translation>
    </message>
    <message>
        <source>*右键点击按键可清除设置、禁用按键或取消禁用</source>
        <translation>*Clique com o botão direito numa tecla para limpar a definição, desativá-la ou voltar a ativá-la</translation>
    </message>
    <message>
        <source>动态键程(DKS)</source>
        <translation>Toque dinâmico (DKS)</translation>
    </message>
    <message>
        <source>按住/单击(MT)</source>
        <translation>Mod-Tap (MT)</translation>
    </message>
    <message>
        <source>切换开关(TGL)</source>
        <translation>Alternar (TGL)</translation>
    </message>
    <message>
        <source>Fn层按键设置</source>
        <translation>Teclas da camada Fn</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Teclas personalizadas</translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>点击按键上色，拖动可给多个按键上色</source>
        <translation>Clique numa tecla para a pintar ou arraste sobre várias</translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation>Os meus trabalhos</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>Cor:</translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation>Seletor de cor:</translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation>Cor aleatória:</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation>Gravar na camada:</translation>
    </message>
    <message>
        <source>图1</source>
        <translation>Img. 1</translation>
    </message>
    <message>
        <source>图2</source>
        <translation>Img. 2</translation>
    </message>
    <message>
        <source>图3</source>
        <translation>Img. 3</translation>
    </message>
    <message>
        <source>图4</source>
        <translation>Img. 4</translation>
    </message>
    <message>
        <source>图5</source>
        <translation>Img. 5</translation>
    </message>
    <message>
        <source>读取层(图):</source>
        <translation>Ler da camada:</translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>还没有作品，给按键上色后点击“保存”</source>
        <translation>Ainda não há trabalhos. Pinte algumas teclas e prima Guardar</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation>Eliminar este trabalho?</translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation>O meu trabalho %1</translation>
    </message>
    <message>
        <source>作品已保存</source>
        <translation>Trabalho guardado</translation>
    </message>
    <message>
        <source>把现在的颜色写入键盘的这一层</source>
        <translation>Guarda as cores mostradas nesta camada do teclado</translation>
    </message>
    <message>
        <source>显示键盘这一层里的颜色</source>
        <translation>Mostra as cores que o teclado tem nesta camada</translation>
    </message>
</context>
<context>
    <name>FrameMacro</name>
    <message>
        <source>宏设置</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>抬起</source>
        <translation>Soltar</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Premir</translation>
    </message>
    <message>
        <source>延迟</source>
        <translation>Atraso</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>Iniciar gravação</translation>
    </message>
    <message>
        <source>插入</source>
        <translation>Inserir</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation>Atraso fixo (ms):</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation>Nova macro</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>Parar gravação</translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键，或点击“插入”添加事件</source>
        <translation>Clique em «Iniciar gravação» e prima teclas, ou em «Inserir» para adicionar um evento</translation>
    </message>
    <message>
        <source>请在左侧选择一个宏</source>
        <translation>Escolha uma macro à esquerda</translation>
    </message>
    <message>
        <source>占用</source>
        <translation>Usado</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>bytes</translation>
    </message>
    <message>
        <source>录制键盘和鼠标按键，再次点击结束</source>
        <translation>Grava teclas e botões do rato até ser premido de novo</translation>
    </message>
    <message>
        <source>把所有延迟都设为右侧的值</source>
        <translation>Define todos os atrasos com o valor à direita</translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation>Ponto de atuação</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Zonas mortas</translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation>Tipo de switch</translation>
    </message>
    <message>
        <source>增稳算法</source>
        <translation>Estabilização</translation>
    </message>
    <message>
        <source>模拟测试</source>
        <translation>Teste</translation>
    </message>
    <message>
        <source>已选中按键的数量</source>
        <translation>Teclas selecionadas</translation>
    </message>
    <message>
        <source>高特</source>
        <translation>Outemu</translation>
    </message>
    <message>
        <source>磁玉</source>
        <translation>Magnetic Jade</translation>
    </message>
    <message>
        <source>磁玉pro</source>
        <translation>Magnetic Jade Pro</translation>
    </message>
    <message>
        <source>磁玉gaming</source>
        <translation>Magnetic Jade Gaming</translation>
    </message>
    <message>
        <source>天王</source>
        <translation>Heavenly King</translation>
    </message>
    <message>
        <source>万磁王</source>
        <translation>King of Magnets</translation>
    </message>
    <message>
        <source>机械轴</source>
        <translation>Switch mecânico</translation>
    </message>
    <message>
        <source>凯华轴</source>
        <translation>Switch Kailh</translation>
    </message>
    <message>
        <source>星引力</source>
        <translation>Star Gravity</translation>
    </message>
    <message>
        <source>炫光</source>
        <translation>Dazzle</translation>
    </message>
    <message>
        <source>闪电</source>
        <translation>Lightning</translation>
    </message>
    <message>
        <source>星耀</source>
        <translation>Star Shine</translation>
    </message>
    <message>
        <source>矮磁轴</source>
        <extracomment>冠泰轴</extracomment>
        <translation>Magnético de perfil baixo</translation>
    </message>
    <message>
        <source>星芒磁轴</source>
        <translation>Starburst</translation>
    </message>
    <message>
        <source>白泽轴</source>
        <translation>Switch Baize</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Personalizado</translation>
    </message>
</context>
<context>
    <name>FrameMain</name>
    <message>
        <source>键程设置(全局)</source>
        <translation>Ponto de atuação (global)</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>Definições do sistema</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>Iniciar este programa com o computador</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>HubTray</name>
    <message>
        <source>显示窗口</source>
        <translation>Mostrar janela</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>Ocultar janela</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Sair</translation>
    </message>
</context>
<context>
    <name>KeyBubble</name>
    <message>
        <source>系统按键</source>
        <translation>Tecla de sistema</translation>
    </message>
    <message>
        <source>动态键程</source>
        <translation>Toque dinâmico</translation>
    </message>
    <message>
        <source>按住单击</source>
        <translation>Mod-Tap</translation>
    </message>
    <message>
        <source>切换开关</source>
        <translation>Alternar</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macros</translation>
    </message>
</context>
<context>
    <name>KeyTestPage</name>
    <message>
        <source>行程测试</source>
        <translation>Teste de curso</translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation>Teste de teclas</translation>
    </message>
    <message>
        <source>输入值</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>按下任意按键。无线连接下没有实时行程数据。</source>
        <translation>Prima qualquer tecla. Sem fios não há dados de curso em tempo real.</translation>
    </message>
</context>
<context>
    <name>LightWorksModel</name>
    <message>
        <source>删除</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation>Pré-visualização,Nome,Gerir</translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准操作指南</source>
        <translation>Guia de calibração do curso</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Prima cada tecla suavemente até ao fundo, uma após outra, e mantenha-a durante pelo menos 1 segundo até ficar laranja (tecla calibrada). Não deixe nenhuma de fora; pode premir de novo. Sem fios, o número de teclas calibradas não é mostrado. Não desligue o cabo durante a calibração.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation>Iniciar calibração</translation>
    </message>
</context>
<context>
    <name>LinearFixing2</name>
    <message>
        <source>行程校准</source>
        <translation>Calibração</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Prima cada tecla suavemente até ao fundo, uma após outra, e mantenha-a durante pelo menos 1 segundo até ficar laranja (tecla calibrada). Não deixe nenhuma de fora; pode premir de novo. Sem fios, o número de teclas calibradas não é mostrado. Não desligue o cabo durante a calibração.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>完成校准</source>
        <translation>Concluir calibração</translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation>Mudar o nome</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>插入</source>
        <translation>Inserir</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>延迟</source>
        <translation>Atraso</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Esquerdo</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Direito</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Central</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>语言</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>系统设置</source>
        <translation>Definições do sistema</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Procurar dispositivos</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>Os meus dispositivos </translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>Tem a certeza de que quer sair do controlador ORBE?</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>A procurar dispositivos</translation>
    </message>
    <message>
        <source>向左滚动</source>
        <translation>Deslocar para a esquerda</translation>
    </message>
    <message>
        <source>向右滚动</source>
        <translation>Deslocar para a direita</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Voltar</translation>
    </message>
</context>
<context>
    <name>MessageBox</name>
    <message>
        <source>是</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>否</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation>Escolha o tipo de evento da macro</translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation>Tecla</translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation>Prima uma tecla…</translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation>Botão do rato</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Esquerdo</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Central</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Direito</translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation>Posição do rato</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ModuleDKSAdjust</name>
    <message>
        <source>按下(mm)</source>
        <translation>Premir (mm)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>按下触发</source>
        <translation>Premida além da atuação</translation>
    </message>
    <message>
        <source>按到底部</source>
        <translation>No fundo</translation>
    </message>
    <message>
        <source>离开底部</source>
        <translation>A sair do fundo</translation>
    </message>
    <message>
        <source>回到顶部</source>
        <translation>De volta ao topo</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Sem função</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Desligado</translation>
    </message>
</context>
<context>
    <name>ModuleDKSTab</name>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>按下触发</source>
        <translation>Premida além da atuação</translation>
    </message>
    <message>
        <source>按到底部</source>
        <translation>No fundo</translation>
    </message>
    <message>
        <source>离开底部</source>
        <translation>A sair do fundo</translation>
    </message>
    <message>
        <source>回到顶部</source>
        <translation>De volta ao topo</translation>
    </message>
</context>
<context>
    <name>ModuleEfColor</name>
    <message>
        <source>系统默认</source>
        <translation>Predefinição</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>单键</source>
        <translation>Tecla única</translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation>Faixa de luz</translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation>Efeito:</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Estático</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Respiração</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Corrente</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Néon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Onda de luz</translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation>Cor:</translation>
    </message>
    <message>
        <source>炫彩</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation>Brilho:</translation>
    </message>
    <message>
        <source>速度：</source>
        <translation>Velocidade:</translation>
    </message>
    <message>
        <source>颜色%1</source>
        <translation>Cor %1</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Seletor de cores</translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation>Brilho</translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>灯效模式</source>
        <translation>Modo de iluminação</translation>
    </message>
    <message>
        <source>关灯</source>
        <translation>Apagar</translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation>Modo de reprodução:</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Estático</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Respiração</translation>
    </message>
    <message>
        <source>流星</source>
        <translation>Meteoro</translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation>Ondulação</translation>
    </message>
    <message>
        <source>极光</source>
        <translation>Aurora</translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation>Gotas de chuva</translation>
    </message>
    <message>
        <source>聚合</source>
        <translation>Convergência</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Corrente</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Néon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Onda de luz</translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation>Céu estrelado</translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation>Sombra</translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation>Onda sinusoidal</translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation>Fonte de cores</translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation>Floração</translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation>Dois pássaros</translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation>Caminho sinuoso</translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation>Chuvisco</translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation>Neve sem rasto</translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation>Camadas</translation>
    </message>
    <message>
        <source>光影</source>
        <translation>Luz e sombra</translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation>Ritmo da música</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Cima</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Baixo</translation>
    </message>
    <message>
        <source>Z形</source>
        <translation>Em Z</translation>
    </message>
    <message>
        <source>回形</source>
        <translation>Espiral</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Para dentro</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Para fora</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>Para a direita</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>Para a esquerda</translation>
    </message>
    <message>
        <source>图案1</source>
        <translation>Imagem 1</translation>
    </message>
    <message>
        <source>图案2</source>
        <translation>Imagem 2</translation>
    </message>
    <message>
        <source>图案3</source>
        <translation>Imagem 3</translation>
    </message>
    <message>
        <source>图案4</source>
        <translation>Imagem 4</translation>
    </message>
    <message>
        <source>图案5</source>
        <translation>Imagem 5</translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation>Sentido horário</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>Sentido anti-horário</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Nenhum</translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation>Velocidade</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>Faixa anterior</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>Faixa seguinte</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>Reproduzir/Pausa</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>音量+</source>
        <translation>Volume&#xa0;+</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Volume&#xa0;−</translation>
    </message>
    <message>
        <source>播放器</source>
        <translation>Leitor multimédia</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>Calculadora</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>Correio</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>Este PC</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>Página inicial</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Recuar</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>Brilho do ecrã&#xa0;+</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Brilho do ecrã&#xa0;−</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>Chamar a Siri</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>Mudar método de introdução</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Bloqueio Fn</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>Bloquear ecrã</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>Tecla R-Fn</translation>
    </message>
    <message>
        <source>DPI-Loop</source>
        <translation>Ciclo de DPI</translation>
    </message>
    <message>
        <source>DPI+</source>
        <translation>DPI&#xa0;+</translation>
    </message>
    <message>
        <source>DPI-</source>
        <translation>DPI&#xa0;−</translation>
    </message>
    <message>
        <source>DPI-Shift</source>
        <translation>DPI-Shift</translation>
    </message>
    <message>
        <source>电源</source>
        <translation>Energia</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>Suspender</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>Despertar</translation>
    </message>
    <message>
        <source>Profile-Value</source>
        <translation>Valor do perfil</translation>
    </message>
    <message>
        <source>Profile+</source>
        <translation>Perfil&#xa0;+</translation>
    </message>
    <message>
        <source>Profile-</source>
        <translation>Perfil&#xa0;−</translation>
    </message>
    <message>
        <source>Profile-Loop</source>
        <translation>Ciclo de perfis</translation>
    </message>
    <message>
        <source>Profile-1</source>
        <translation>Perfil 1</translation>
    </message>
    <message>
        <source>Profile-2</source>
        <translation>Perfil 2</translation>
    </message>
    <message>
        <source>Profile-3</source>
        <translation>Perfil 3</translation>
    </message>
    <message>
        <source>Profile-4</source>
        <translation>Perfil 4</translation>
    </message>
    <message>
        <source>Profile-5</source>
        <translation>Perfil 5</translation>
    </message>
    <message>
        <source>L-Fn键</source>
        <translation>Tecla L-Fn</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Repor definições de fábrica</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Bloquear Win</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Mudar para Win</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Mudar para Mac</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>Mudar de sistema</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>Ver bateria</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>Alternar WASD</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Alternar camada Fn</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>Poupança de energia</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>Alternar APP CTRL</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>Retroiluminação lig./desl.</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Ciclo de efeitos</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Efeito&#xa0;+</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Efeito&#xa0;−</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Ciclo de brilho</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Brilho da luz&#xa0;+</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Brilho da luz&#xa0;−</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Ciclo de velocidade</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Velocidade da luz&#xa0;−</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Velocidade da luz&#xa0;+</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>Ciclo de direção</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>Luz para a esquerda</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>Luz para a direita</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>Ciclo de cores</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>Cor da luz&#xa0;+</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Cor da luz&#xa0;−</translation>
    </message>
    <message>
        <source>Use Pic 0</source>
        <translation>Usar imagem 0</translation>
    </message>
    <message>
        <source>Use Pic 1</source>
        <translation>Usar imagem 1</translation>
    </message>
    <message>
        <source>Use Pic 2</source>
        <translation>Usar imagem 2</translation>
    </message>
    <message>
        <source>Use Pic 3</source>
        <translation>Usar imagem 3</translation>
    </message>
    <message>
        <source>Use Pic 4</source>
        <translation>Usar imagem 4</translation>
    </message>
    <message>
        <source>Use Pic</source>
        <translation>Usar imagem</translation>
    </message>
    <message>
        <source>侧光开/关</source>
        <translation>Luz lateral lig./desl.</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>Ciclo de brilho lateral</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>Ciclo de velocidade lateral</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>Velocidade lateral&#xa0;+</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Velocidade lateral&#xa0;−</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Ciclo de cores lateral</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Cor lateral&#xa0;+</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Cor lateral&#xa0;−</translation>
    </message>
    <message>
        <source>2.4G</source>
        <translation>2.4G</translation>
    </message>
    <message>
        <source>蓝牙1</source>
        <translation>Bluetooth 1</translation>
    </message>
    <message>
        <source>蓝牙2</source>
        <translation>Bluetooth 2</translation>
    </message>
    <message>
        <source>蓝牙3</source>
        <translation>Bluetooth 3</translation>
    </message>
    <message>
        <source>有线</source>
        <translation>Com fios</translation>
    </message>
    <message>
        <source>有线-蓝牙-2.4G</source>
        <translation>Com fios-Bluetooth-2.4G</translation>
    </message>
    <message>
        <source>2.4G配对</source>
        <translation>Emparelhamento 2.4G</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>Emparelhamento Bluetooth</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Tecla Insert</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Tecla Print Screen</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>Clique esquerdo</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>Clique direito</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>Clique central</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>Rato avançar</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>Rato recuar</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>Roda para a esquerda</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>Roda para a direita</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>Roda para cima</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>Roda para baixo</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Deslocar para cima</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Deslocar para baixo</translation>
    </message>
    <message>
        <source>XUP</source>
        <translation>XUP</translation>
    </message>
    <message>
        <source>XDOWN</source>
        <translation>XDOWN</translation>
    </message>
    <message>
        <source>YUP</source>
        <translation>YUP</translation>
    </message>
    <message>
        <source>YDOWN</source>
        <translation>YDOWN</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>功能</source>
        <translation>Função</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>Rato</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Combinação</translation>
    </message>
</context>
<context>
    <name>ModuleGeneralMasker</name>
    <message>
        <source>对话框</source>
        <translation>Caixa de diálogo</translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>屏幕键盘</source>
        <translation>Teclado no ecrã</translation>
    </message>
    <message>
        <source>已选中按键</source>
        <translation>Tecla selecionada</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>Tecla modificada</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>Tecla desativada</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>Ativar tecla</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>Desativar tecla</translation>
    </message>
</context>
<context>
    <name>ModuleLangMenu</name>
    <message>
        <source>中文简体</source>
        <translation>中文简体</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>中文繁体</source>
        <translation>中文繁体</translation>
    </message>
    <message>
        <source>日本語</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>한국어</source>
        <translation>한국어</translation>
    </message>
    <message>
        <source>Русский</source>
        <translation>Русский</translation>
    </message>
    <message>
        <source>Tiếng Việt</source>
        <translation>Tiếng Việt</translation>
    </message>
    <message>
        <source>Português</source>
        <translation>Português</translation>
    </message>
    <message>
        <source>ภาษาไทย</source>
        <translation>ภาษาไทย</translation>
    </message>
    <message>
        <source>Deutsch</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Français</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>Svenska</source>
        <translation>Svenska</translation>
    </message>
    <message>
        <source>Italiano</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <source>Türkçe</source>
        <translation>Türkçe</translation>
    </message>
</context>
<context>
    <name>ModuleLinear</name>
    <message>
        <source>按下(mm)</source>
        <translation>Atuação (mm)</translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation>Libertação (mm)</translation>
    </message>
    <message>
        <source>%1(mm)</source>
        <translation>%1 (mm)</translation>
    </message>
</context>
<context>
    <name>ModuleMTTab</name>
    <message>
        <source>选定上方键位，可通过选择单击及长按两种触发模式，设置两个功能（支持组合键）</source>
        <translation>Selecione uma tecla acima e atribua-lhe duas funções: uma para o toque e outra para manter premida (suporta combinações)</translation>
    </message>
    <message>
        <source>单击</source>
        <translation>Toque</translation>
    </message>
    <message>
        <source>按住</source>
        <translation>Manter</translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation>Ajustar o tempo até acionar «Manter»</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>按住超过这段时间才执行“按住”的功能</source>
        <translation>Manter a tecla mais tempo do que isto executa a função «Manter»</translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation>Nova macro </translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>RT行程设置(全局)</source>
        <translation>Sensibilidade RT (global)</translation>
    </message>
</context>
<context>
    <name>ModuleScrollValue</name>
    <message>
        <source>数值滚轮</source>
        <translation>Roda de valores</translation>
    </message>
</context>
<context>
    <name>ModuleSnapTab</name>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation>Associa 2 teclas (escolha cada uma acima): com ambas premidas, vale a última a ser premida (SOCD)</translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation>Escolher tecla A</translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation>Escolher tecla B</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ModuleTGLTab</name>
    <message>
        <source>选定上方键位，可通过选择连点及长按两种触发模式，设置两个功能</source>
        <translation>Selecione uma tecla acima e defina a função num de dois modos: repetir ou manter</translation>
    </message>
    <message>
        <source>连点</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>长按</source>
        <translation>Manter</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Sem função</translation>
    </message>
</context>
<context>
    <name>ModuleVideoItem</name>
    <message>
        <source>Movie</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Orbe 7090 操作指南-宏设置</source>
        <translation>Guia Orbe 7090: macros</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Selecionar tudo</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>A&amp;umentar</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Diminuir</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Anular</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;lar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
</context>
<context>
    <name>ShellNotices</name>
    <message>
        <source>重试</source>
        <translation>Tentar de novo</translation>
    </message>
</context>
<context>
    <name>StabilityPage</name>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation>RT Stab (estabilização RT)</translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation>Com o RT Stab ligado, o algoritmo reforça a estabilidade no fundo do curso. Quanto maior a percentagem, maior a estabilidade e um pouco mais de latência.</translation>
    </message>
    <message>
        <source>0%(关闭)</source>
        <translation>0% (desligado)</translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation>Proteção contra toques acidentais</translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation>(Desligado)</translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation>Evita acionamentos por vibração da mesa em definições extremas e compensa tolerâncias do switch de 0,1 mm. Quando ligado, o algoritmo no fundo do curso compensa a diferença e torna o teclado mais estável.</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>Desligado</translation>
    </message>
</context>
<context>
    <name>SwitchTypePage</name>
    <message>
        <source>轴体设置</source>
        <translation>Tipo de switch</translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation>Depois de trocar os switches, escolha abaixo o tipo correspondente e clique nas teclas que o usam</translation>
    </message>
    <message>
        <source>炫光</source>
        <translation>Dazzle</translation>
    </message>
    <message>
        <source>闪电</source>
        <translation>Lightning</translation>
    </message>
    <message>
        <source>星芒磁轴</source>
        <translation>Starburst</translation>
    </message>
    <message>
        <source>磁玉</source>
        <translation>Magnetic Jade</translation>
    </message>
    <message>
        <source>磁玉Pro</source>
        <translation>Magnetic Jade Pro</translation>
    </message>
    <message>
        <source>磁玉Gaming</source>
        <translation>Magnetic Jade Gaming</translation>
    </message>
    <message>
        <source>天王</source>
        <translation>Heavenly King</translation>
    </message>
    <message>
        <source>万磁王</source>
        <translation>King of Magnets</translation>
    </message>
</context>
<context>
    <name>ToggleButton</name>
    <message>
        <source>开关</source>
        <translation>Interruptor</translation>
    </message>
</context>
<context>
    <name>TravelPage</name>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation>Definir atuação e libertação em separado:</translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation>Rapid Trigger contínuo (RT)</translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。
禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation>Ligado: o Rapid Trigger só termina quando solta a tecla por completo.
Desligado: o Rapid Trigger termina quando a tecla sobe acima do ponto de atuação</translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation>Definir o curso RT de premir e soltar em separado</translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation>Curso para acionar ao premir de novo (mm)</translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation>Curso para repor ao soltar (mm)</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>抬起后再按下这段距离即再次触发，越小越灵敏</source>
        <translation>Premir esta distância, a partir de qualquer posição, volta a atuar; menor é mais sensível</translation>
    </message>
    <message>
        <source>按下后抬起这段距离即释放，越小越灵敏</source>
        <translation>Levantar esta distância, a partir de qualquer posição, liberta a tecla; menor é mais sensível</translation>
    </message>
    <message>
        <source>按键按到多深时触发</source>
        <translation>Até onde a tecla desce antes de atuar</translation>
    </message>
    <message>
        <source>按键抬到多高时释放</source>
        <translation>Até onde a tecla sobe antes de se libertar</translation>
    </message>
</context>
<context>
    <name>TravelRuler</name>
    <message>
        <source>行程测试</source>
        <translation>Teste de curso</translation>
    </message>
</context>
<context>
    <name>WorkMeter</name>
    <message>
        <source>正在读取键盘</source>
        <translation>A ler o teclado</translation>
    </message>
    <message>
        <source>正在写入键盘</source>
        <translation>A gravar no teclado</translation>
    </message>
</context>
</TS>
